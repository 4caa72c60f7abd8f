/// What a user can do in the plain application, which has an image with a share button and a photo picker:
/// all that an ordinary application has to do with photos. Main thread; the running application must be it.
#pragma once

#import "UIKit/UIKit.h"

#include <nlohmann/json.hpp>

@interface PlainViewController : UIViewController
@end

namespace simulator::plain {

/// Opens the share sheet and saves the picture into the photo library; waits until it is there. Throws
/// std::runtime_error when it does not arrive.
void saveImage();

/// Opens the photo picker and lists what it shows, see describePicker().
nlohmann::json listPicker();

/// {"do": "saveImage"}, {"do": "listPicker"}.
void addVerbs();

} // namespace simulator::plain
