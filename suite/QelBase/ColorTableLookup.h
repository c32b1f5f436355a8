#pragma once
// Colours whole grids by a colour table in one call: every value gets exactly the colour
// ColorTable::GetColor gives it, as an 0xAARRGGBB word (alpha 255), and NaN cells the "no
// data" colour (transparent black unless chosen otherwise). The table is copied when the
// lookup is made; later changes to it do not reach the lookup.
//
// The lookup never searches the whole table per cell: an index over the value range gives each
// cell the few entries it has to be compared with (a handful of steps for even the most uneven
// table), and the comparisons run in vectors on the widest instruction set of the processor
// (chosen when the program runs). Making a lookup takes time linear in the table's size.
// Values and colours need no particular alignment; grids of 16 MB of colours and more are
// written past the memory caches. A lookup is read-only once made: threads may share it.

#include "QelBase/QelBaseExport.h"
#include <QtGlobal>
#include <cstdint>
#include <vector>

class ColorTable;

class QELBASE_EXPORT ColorTableLookup
{
public:
    // The colour NaN cells take unless another is chosen: transparent black.
    static constexpr quint32 kNoData = 0x00000000u;

    // A lookup of an empty table: every value gets white, NaN the no-data colour.
    ColorTableLookup();
    // A lookup of `table`; NaN cells take `noData` (an 0xAARRGGBB word, used as given).
    explicit ColorTableLookup(const ColorTable& table, quint32 noData = kNoData);

    // The 0xAARRGGBB colour of one value.
    quint32 Argb(float value) const;
    // Colours `count` values into `out` (0xAARRGGBB words); nothing for a count below one.
    void Colour(const float* values, qsizetype count, quint32* out) const;
    // Colours a grid of `width` x `height` values, rows `valueStride` floats apart, into rows
    // `outStride` words apart. Nothing happens for a negative or zero size.
    void ColourGrid(const float* values, int width, int height, qsizetype valueStride,
                    quint32* out, qsizetype outStride) const;
    // The colour NaN cells take.
    quint32 NoDataColor() const;

    // The instruction set the colouring runs on in this process, as Highway names it.
    static const char* VectorTarget();

private:
    // Implementation data (filled by the constructor).
    std::vector<float> m_thresholds;   // entry values rounded up to floats, padded with NaN
    std::vector<quint32> m_colours;    // index 0 the low colour, i + 1 entry i (0xAARRGGBB)
    std::vector<std::int32_t> m_binBase;  // entries certainly not above each bin of the index
    int m_binProbes = 0;               // search steps over the entries after the bin's base
    float m_binOrigin = 0.0f;
    float m_binScale = 0.0f;
    // With at most one entry per bin (a single search step): the entry of each bin, padded
    // with NaN, and the colours below and from it, so that a cell needs two loads.
    std::vector<float> m_binThreshold;
    std::vector<quint32> m_binColours;
    quint32 m_noData = kNoData;
};
