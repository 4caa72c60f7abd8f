// RKFlowLayout, the one class that the library defines.
#pragma once

namespace rollkeeper {

// Registers the class where UIKit is there. Nothing creates or refers to it; it is kept for other extensions.
void registerFlowLayout();

} // namespace rollkeeper
