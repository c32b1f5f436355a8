// The colour-map reader (ColorMap::Load and ColorConverter::Load over a FileObject). Checked:
// the substitutions are ordered and all found, the file's system colours are known names, the
// factors are usable, every problem is reported in its section's name, comments after the
// values change nothing, and the image converter built from the map converts every pixel as the
// colour conversion does (vector and single-pixel forms alike).
#include "FuzzSupport.h"

#include <QelBase/FileObject.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ColorConverter.h>
#include <QelMfc0/colour/ColorMap.h>
#include <QelMfc0/colour/WindowsColorMap.h>

#include <cmath>
#include <vector>

namespace {

struct Loaded
{
    ColorMap map;
    ColorConverter converter;
    QStringList converterErrors;

    explicit Loaded(const FileObject& file)
    {
        map.Load(file);
        converter.Load(file, &converterErrors);
    }
};

int EntryCount(const FileObject& file)
{
    return int(file.GetEntries(ColorMap::kQelColorsSection).size()
               + file.GetEntries(ColorMap::kWinColorsSection).size());
}

void CheckLoaded(const FileObject& file, const Loaded& loaded)
{
    const auto& substitutions = loaded.map.Substitutions();
    FUZZ_CHECK(loaded.map.Count() == int(substitutions.size()));
    for (std::size_t i = 0; i < substitutions.size(); ++i) {
        FUZZ_CHECK(i == 0 || substitutions[i - 1].first < substitutions[i].first, "substitutions out of order");
        COLORREF found = 0;
        FUZZ_CHECK(loaded.map.Find(substitutions[i].first, found) && found == substitutions[i].second,
                   "substitution of %08x not found", substitutions[i].first);
    }
    const WindowsColorMap& colors = loaded.map.GetFileColors();
    FUZZ_CHECK(colors.Count() <= 28);
    for (const auto& [name, entry] : colors.Entries())
        FUZZ_CHECK(WindowsColorMap::IndexOf(name) == entry.first && (entry.second >> 24) == 0);

    const ColorConverter& c = loaded.converter;
    for (double factor : { c.GetRedFactor(), c.GetGreenFactor(), c.GetBlueFactor() })
        FUZZ_CHECK(std::isfinite(factor) && factor >= 0.0, "factor %g", factor);

    // At most one line per entry and problem; each names its section.
    FUZZ_CHECK(loaded.map.GetErrors().size() <= 4 * EntryCount(file));
    for (const QString& error : loaded.map.GetErrors())
        FUZZ_CHECK(error.startsWith(QLatin1String("[QEL_COLORS] ")) || error.startsWith(QLatin1String("[WIN_COLORS] ")),
                   "%s", fuzz::Show(error).constData());
    for (const QString& error : loaded.converterErrors)
        FUZZ_CHECK(error.startsWith(QLatin1String("[PARAMS] ")), "%s", fuzz::Show(error).constData());
}

// Colours of the map and a spread of others, with varied alpha, the key colour among them.
std::vector<quint32> Pixels(const ColorMap& map, const QByteArray& seed)
{
    quint32 state = 2166136261u;
    for (char ch : seed)
        state = (state ^ quint8(ch)) * 16777619u;
    std::vector<quint32> pixels;
    const auto& substitutions = map.Substitutions();
    for (int i = 0; i < 83; ++i) { // not a multiple of the vector widths: the tail is converted too
        state = state * 1664525u + 1013904223u;
        quint32 pixel = state;
        if (!substitutions.empty() && (i % 3) != 0)
            pixel = (substitutions[std::size_t(state >> 8) % substitutions.size()].first & 0x00FFFFFF)
                  | (state & 0xFF000000);
        if (i == 5)
            pixel = 0x7FC0C0C0;
        pixels.push_back(pixel);
    }
    return pixels;
}

void CheckImageConversion(const Loaded& loaded, const QByteArray& seed)
{
    const BitmapRemapper remapper(loaded.map, loaded.converter);
    std::vector<quint32> pixels = Pixels(loaded.map, seed);
    const std::vector<quint32> original = pixels;
    remapper.Remap(pixels.data(), qsizetype(pixels.size()));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const quint32 pixel = original[i];
        const COLORREF color = pixel & 0x00FFFFFF;
        COLORREF expected = 0;
        if (color == 0xC0C0C0)
            expected = color;
        else if (!loaded.map.Find(color, expected))
            expected = loaded.converter.Convert(color, loaded.converter.GetInvert());
        expected = (pixel & 0xFF000000) | (expected & 0x00FFFFFF);
        FUZZ_CHECK(pixels[i] == expected, "pixel %08x became %08x, not %08x (vector target %s)", pixel,
                   pixels[i], expected, BitmapRemapper::VectorTarget());
        FUZZ_CHECK(remapper.RemapPixel(pixel) == expected, "pixel %08x: single-pixel form differs", pixel);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = fuzz::Bytes(data, size);
    FileObject file;
    file.LoadFromText(QString::fromUtf8(bytes));
    const Loaded loaded(file);
    CheckLoaded(file, loaded);
    CheckImageConversion(loaded, bytes);

    // The same entries with a comment after each value read the same.
    FileObject commented;
    for (const QString& section : { ColorMap::kQelColorsSection, ColorMap::kWinColorsSection, ColorConverter::kSection }) {
        if (file.HasSection(section))
            commented.AddSection(section);
        for (const auto& [key, value] : file.GetEntries(section)) {
            if (key.startsWith(QLatin1Char('[')))
                return 0; // such a key cannot be written back
            commented.AddEntry(section, key, value + QStringLiteral(" ; note"));
        }
    }
    const Loaded again(commented);
    FUZZ_CHECK(again.map.Substitutions() == loaded.map.Substitutions(), "a comment changes the substitutions");
    FUZZ_CHECK(again.map.GetFileColors().Entries() == loaded.map.GetFileColors().Entries(),
               "a comment changes the system colours");
    const ColorConverter& a = again.converter;
    const ColorConverter& b = loaded.converter;
    FUZZ_CHECK(a.GetRedFactor() == b.GetRedFactor() && a.GetGreenFactor() == b.GetGreenFactor()
                   && a.GetBlueFactor() == b.GetBlueFactor() && a.GetInvert() == b.GetInvert(),
               "a comment changes the parameters");
    FUZZ_CHECK(again.map.GetErrors().size() == loaded.map.GetErrors().size()
                   && again.converterErrors.size() == loaded.converterErrors.size(),
               "a comment changes the problems found");
    return 0;
}
