// Sample libraries, from ten photos to a hundred thousand: apart from identifiers the same content every
// time.
#pragma once

#include "photolibrary/library.h"

namespace simulator {

/// Ten assets, taken on ten days from 1 July 2016 on, oldest first: seven plain photos (the fourth a
/// favourite), a video, a screenshot and a live selfie. Albums "Holidays" (first to third), "Family" (third
/// to sixth), "Work" (seventh) and the empty "Pets". Nothing is hidden or in the trash.
void addSmallSample(PhotoLibrary& library);

struct SampleSize {
    std::size_t photos;
    std::size_t albums;
};

/// Assets spread evenly over the albums, some hidden, favourite or in the trash; titles that repeat, that are
/// missing, and with quotes and emoji; a tenth of the albums lies in folders.
void addSample(PhotoLibrary& library, SampleSize size);

} // namespace simulator
