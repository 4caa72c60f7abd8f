// The symbols on buttons, tabs and icons: SVG paths in a box of 24 by 24, filled by the even-odd rule.
#pragma once

namespace simulator::outline {

inline constexpr const char* plus = "M11 3h2v8h8v2h-8v8h-2v-8H3v-2h8z";
inline constexpr const char* search =
    "M10 2a8 8 0 1 0 4.9 14.3l5.4 5.4 1.4-1.4-5.4-5.4A8 8 0 0 0 10 2zm0 2a6 6 0 1 1 0 12 "
    "6 6 0 0 1 0-12z";
inline constexpr const char* back = "M15 2l2 2-8 8 8 8-2 2L5 12z";
inline constexpr const char* disclosure = "M9 5L7.5 6.5 13 12l-5.5 5.5L9 19l7-7z";
inline constexpr const char* check = "M9 19l-6-6 2-2 4 4L19 5l2 2z";
inline constexpr const char* cross = "M6 4.5L4.5 6l6 6-6 6L6 19.5l6-6 6 6 1.5-1.5-6-6 6-6L18 4.5l-6 6z";
inline constexpr const char* photos = "M2 5h20v14H2zm2 2v7l4-4 5 5 3-3 4 4V7z";
inline constexpr const char* memories = "M12 2a10 10 0 1 0 0 20 10 10 0 0 0 0-20zm-2 5.5l7 4.5-7 4.5z";
inline constexpr const char* shared = "M7 19a5 5 0 0 1-.6-10 6.5 6.5 0 0 1 12.3 1.2A4.5 4.5 0 0 1 18 19z";
inline constexpr const char* albums = "M3 9h18v11H3zm2-3h14v1.5H5zm2-3h10v1.5H7z";
inline constexpr const char* person = "M12 3a5 5 0 1 1 0 10 5 5 0 0 1 0-10zM2 22c0-5 4-8 10-8s10 3 10 8z";
inline constexpr const char* camera = "M9 4h6l2 3h5v13H2V7h5zm3 5a4.5 4.5 0 1 0 0 9 4.5 4.5 0 0 0 0-9z";
inline constexpr const char* gear =
    "M12 1l2 4 4-1.5.5 4 4 1.5-2.5 3 2.5 3-4 1.5-.5 4-4-1.5-2 4-2-4-4 "
    "1.5-.5-4-4-1.5 2.5-3-2.5-3 4-1.5.5-4 4 1.5zm0 7a4 4 0 1 0 0 8 4 4 0 0 0 0-8z";
inline constexpr const char* bubble = "M12 3c5.5 0 10 3.6 10 8s-4.5 8-10 8c-1.2 0-2.4-.2-3.5-.5L4 "
                                      "21l1-4c-1.9-1.5-3-3.6-3-6 0-4.4 4.5-8 10-8z";
inline constexpr const char* upload = "M12 3l7 7h-4v7H9v-7H5zM5 19h14v2H5z";
inline constexpr const char* save = "M9 2h6v7h4l-7 7-7-7h4zM5 18h14v2H5z";
inline constexpr const char* share =
    "M12 1l5 5-1.4 1.4L13 4.8V15h-2V4.8L8.4 7.4 7 6zM5 9h4v2H7v10h10V11h-2V9h4v14H5z";
inline constexpr const char* trash = "M9 1h6v2h5v2H4V3h5zM5.5 7h13l-1 15h-11zM9 9v11h1V9zm5 0v11h1V9z";
inline constexpr const char* page = "M5 2h9l5 5v15H5zm8 1.5V8h4.5z";
inline constexpr const char* bolt = "M13 2L5 14h6l-1 8 8-12h-6z";
inline constexpr const char* arrowUp = "M0 24L12 0l12 24z";
inline constexpr const char* arrowDown = "M0 0h24L12 24z";

} // namespace simulator::outline
