// The pixels behind an image and the name of the file that it came from.
#pragma once

#import "UIKit/UIImage.h"
#include "UIKit/model/Bitmap.h"

@interface UIImage (Pixels)

- (const simulator::Bitmap&)bitmap;
// The last part of the path; nil for an image that came from no file.
- (NSString*)fileName;

@end
