#pragma once

#import <Foundation/Foundation.h>

#define PREFERENCE_KEY(constant, text) extern NSString* const constant;
extern "C" {
#include "Preferences/PSKeys.def"
}
#undef PREFERENCE_KEY
