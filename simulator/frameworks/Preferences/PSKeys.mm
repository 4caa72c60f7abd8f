#import "Preferences/PSKeys.h"

#define PREFERENCE_KEY(constant, text) NSString* const constant = text;
#include "Preferences/PSKeys.def"
