// The verbs of a host's control socket that see and touch its screen.
#pragma once

namespace simulator {

// viewTree; tap and longPress at "tag", "path" (indexes of subviews from the key window), "text" or "x" and "y";
// barButton; type; alertAction; chooseActivity; rotate; enterBackground; enterForeground. Once per process.
void registerViewTreeVerbs();

} // namespace simulator
