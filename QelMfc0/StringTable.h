#pragma once
// The library's string table: user-visible texts by their suite-wide numbers, translated.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>

namespace QelStrings {
constexpr int SLOPE_LABEL = 6952;          // "Slope:"
constexpr int LATLON_LABEL = 6967;         // "Lat/Lon"
constexpr int XY_LABEL = 6968;             // "X/Y"
constexpr int EXAMPLES_TITLE = 6969;       // "Examples"
constexpr int ZDIFF_LABEL = 6980;          // "Z Diff."
constexpr int SAT_LATLON_LABEL = 6992;     // "Sat.\nLat/Lon"
constexpr int MODE_UNKNOWN = 6928;         // "Unknown"
constexpr int MODE_NORMAL = 6929;          // "Normal"
constexpr int MODE_NIGHT = 6930;           // "Night"
constexpr int MODE_TWILIGHT = 6931;        // "Twilight"
constexpr int MODE_BRIGHT = 6932;          // "Bright"
constexpr int BITMAP_FILE = 6972;          // "Bitmap File"
constexpr int AUDIO_VIDEO_FILE = 6974;     // "Audio Video Interleave File"
constexpr int TIFF_FILE = 6975;            // "Tagged Image Format File"
constexpr int JPEG_FILE = 6976;            // "Joint Photographic Group File"
constexpr int IMPORT_IMAGE_TITLE = 6977;   // "Import Image " (with its trailing blank)
} // namespace QelStrings

// The translated text of string `id`; empty for a number the table does not hold.
QELMFC0_EXPORT QString LoadQelString(int id);
