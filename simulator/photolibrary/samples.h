// The sample library that tests and the tour begin with: apart from identifiers the same content every time.
#pragma once

#include "photolibrary/library.h"

namespace simulator {

/// Ten assets, taken on ten days from 1 July 2016 on, oldest first: seven plain photos (the fourth a
/// favourite), a video, a screenshot and a live selfie. Albums "Holidays" (first to third), "Family" (third
/// to sixth), "Work" (seventh) and the empty "Pets". Nothing is hidden or in the trash.
void addSmallSample(PhotoLibrary& library);

} // namespace simulator
