// Stand-in of the layer framework.
#pragma once

#import "QuartzCore/CALayer.h"
