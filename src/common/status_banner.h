// The black banner in the middle of the screen by which album operations report. Main thread.
#pragma once

#include "platform/uikit.h"

namespace rollkeeper {

enum class BannerLife {
    hidesItself, // after a second
    stays,       // until dismissStatusBanner
};

void showStatusBanner(NSString message, BannerLife life);

// The spinner in the lower part of a banner that stays. There is one at most.
void showProgressSpinner();

// Takes the spinner and the oldest banner away.
void dismissStatusBanner();

} // namespace rollkeeper
