#pragma once
// GNUstep's headers ask for this name when blocks are on; the functions are those of BlocksRuntime.
#include <Block.h>
