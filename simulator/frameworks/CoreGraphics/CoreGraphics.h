// Stand-in of the drawing framework, as far as views need it: its geometry.
#pragma once

#import "CoreGraphics/CGGeometry.h"
