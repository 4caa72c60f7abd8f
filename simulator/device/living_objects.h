// Counts of the objects that are alive, by class: tells what a piece of work leaves behind.
#pragma once

#include <map>
#include <string>

namespace simulator {

using ObjectCounts = std::map<std::string, int>;

// Only objects made after this are counted. For the whole process; slows every allocation down.
void startCountingObjects();

ObjectCounts livingObjects();

// The classes of which there are more objects after than before, with how many more.
ObjectCounts growth(const ObjectCounts& before, const ObjectCounts& after);

} // namespace simulator
