// The tables of a photo library.
#pragma once

namespace simulator {

class Connection;

/// Makes the tables where they are missing. Throws DatabaseError, also for a file that is no photo library.
void prepareSchema(Connection& connection);

} // namespace simulator
