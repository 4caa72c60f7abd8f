#pragma once

#import "Preferences/PSRootController.h"
