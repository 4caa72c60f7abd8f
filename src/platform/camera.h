// CameraUI, private to the Camera.
#pragma once

#include "platform/uikit.h"

namespace rollkeeper {

struct CAMCaptureEngine : NSObject {
    static constexpr FixedString className = "CAMCaptureEngine";

    // Added by the library.
    void movePhoto() const { send<CAMCaptureEngine, "movePhoto", void>(*this); }
};

struct CAMBottomBar : UIView {
    static constexpr FixedString className = "CAMBottomBar";

    UIView backgroundView() const { return send<CAMBottomBar, "backgroundView", UIView>(*this); }
};

struct CAMImageWell : UIView {
    static constexpr FixedString className = "CAMImageWell";
};

} // namespace rollkeeper
