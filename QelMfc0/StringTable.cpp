#include "QelMfc0/StringTable.h"

#include <QCoreApplication>
#include <QHash>

namespace {
// The untranslated texts; QT_TRANSLATE_NOOP marks them for the translation files.
const QHash<int, const char*>& Texts()
{
    static const QHash<int, const char*> texts = {
        { QelStrings::SLOPE_LABEL, QT_TRANSLATE_NOOP("QelMfc0", "Slope:") },
        { QelStrings::LATLON_LABEL, QT_TRANSLATE_NOOP("QelMfc0", "Lat/Lon") },
        { QelStrings::XY_LABEL, QT_TRANSLATE_NOOP("QelMfc0", "X/Y") },
        { QelStrings::EXAMPLES_TITLE, QT_TRANSLATE_NOOP("QelMfc0", "Examples") },
        { QelStrings::ZDIFF_LABEL, QT_TRANSLATE_NOOP("QelMfc0", "Z Diff.") },
        { QelStrings::SAT_LATLON_LABEL, QT_TRANSLATE_NOOP("QelMfc0", "Sat.\nLat/Lon") },
        { QelStrings::MODE_UNKNOWN, QT_TRANSLATE_NOOP("QelMfc0", "Unknown") },
        { QelStrings::MODE_NORMAL, QT_TRANSLATE_NOOP("QelMfc0", "Normal") },
        { QelStrings::MODE_NIGHT, QT_TRANSLATE_NOOP("QelMfc0", "Night") },
        { QelStrings::MODE_TWILIGHT, QT_TRANSLATE_NOOP("QelMfc0", "Twilight") },
        { QelStrings::MODE_BRIGHT, QT_TRANSLATE_NOOP("QelMfc0", "Bright") },
        { QelStrings::BITMAP_FILE, QT_TRANSLATE_NOOP("QelMfc0", "Bitmap File") },
        { QelStrings::AUDIO_VIDEO_FILE, QT_TRANSLATE_NOOP("QelMfc0", "Audio Video Interleave File") },
        { QelStrings::TIFF_FILE, QT_TRANSLATE_NOOP("QelMfc0", "Tagged Image Format File") },
        { QelStrings::JPEG_FILE, QT_TRANSLATE_NOOP("QelMfc0", "Joint Photographic Group File") },
        { QelStrings::IMPORT_IMAGE_TITLE, QT_TRANSLATE_NOOP("QelMfc0", "Import Image ") },
    };
    return texts;
}
} // namespace

QString LoadQelString(int id)
{
    const char* text = Texts().value(id, nullptr);
    return text ? QCoreApplication::translate("QelMfc0", text) : QString();
}
