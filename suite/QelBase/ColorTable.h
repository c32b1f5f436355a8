#pragma once
// A colour table of survey values (depths, dredging differences, bottom classes, map scales):
// entries sorted by value, each with a colour, a locked flag and a name, and a named low colour
// for values below the first entry. Values are unique: an entry of a value already present
// replaces it. Read and written as sections of a FileObject (docs/formats.md, colour tables).
//
// Range generation. A range of `count` colours from `minColor` to `maxColor` over [min, max]
// makes the low colour the first colour and count - 1 entries from min to max (the last one
// exactly at max) with the others; a range by step puts entries at min, min + step, ... and a
// last one at max, so it has ceil((max - min) / step) + 2 colours. min > max swaps the two
// ends, values and colours together. min = max gives one entry. Colours between the ends are
// interpolated in hue, saturation and value (SetRange: the hue runs straight from the first
// end's hue to the second's, a grey end takes the other end's hue) or in red, green and blue
// (the RGB forms); the three-colour forms run through a middle colour halfway. Generation
// refuses (false, table unchanged) non-finite ends, fewer than two colours, a step that is not
// positive, and more than kMaxEntries entries.

#include "QelBase/QelBaseExport.h"
#include <QString>
#include <QStringList>
#include <QelBase/QelTypes.h>
#include <vector>

class FileObject;

class QELBASE_EXPORT ColorTable
{
public:
    struct Entry {
        double value = 0.0;
        COLORREF color = 0;
        bool locked = false;
        QString name;
        bool operator==(const Entry&) const = default;
    };

    // The most entries a table holds (generation and files stop there).
    static constexpr int kMaxEntries = 1 << 20;

    ColorTable();
    virtual ~ColorTable();
    ColorTable(const ColorTable&);
    ColorTable& operator=(const ColorTable&);
    bool operator==(const ColorTable& other) const;

    // Number of entries, in ascending order of value.
    int NumEntries() const;
    // Value, colour, locked flag and name of entry `index`; defaults for an index out of range.
    double EntryValue(int index) const;
    COLORREF EntryColor(int index) const;
    bool EntryLocked(int index) const;
    QString EntryName(int index) const;
    // Number of locked entries.
    int NumLocked() const;
    // All entries in ascending order of value.
    const std::vector<Entry>& Entries() const;

    // Inserts an entry in value order, or replaces the entry of the same value (colour, lock
    // and name); returns its index, -1 for a non-finite value or a full table.
    int InsertEntry(double value, COLORREF color, bool locked);
    // As InsertEntry, with a name.
    int AddEntry(double value, COLORREF color, bool locked, const QString& name);
    // Removes entry `index`; false when out of range.
    bool RemoveEntry(int index);
    // Change the colour, name or lock of entry `index`; false when out of range.
    bool SetEntryColor(int index, COLORREF color);
    bool SetEntryName(int index, const QString& name);
    bool SetEntryLocked(int index, bool locked);
    // Removes every entry (includeLocked), or only the unlocked ones.
    void ClearEntries(bool includeLocked = true);

    // The colour for values below the first entry (and for an empty table); white by default.
    COLORREF LowColor() const;
    void SetLowColor(COLORREF color);
    QString LowColorName() const;
    void SetLowColorName(const QString& name);

    // The colour of a value: that of the entry with the largest value not above it, else the
    // low colour; NaN gives the low colour.
    COLORREF GetColor(double value) const;
    // Black or white, whichever reads better on `background`.
    static COLORREF GetContrastColor(COLORREF background);
    // Hue in degrees [0, 360) (0 for greys), saturation and value in [0, 1].
    static void RGBtoHSV(COLORREF color, double& hue, double& saturation, double& value);
    // The colour of a hue in degrees (any value, taken modulo 360), saturation and value in
    // [0, 1] (clamped); channels rounded to the nearest byte.
    static COLORREF HSVtoRGB(double hue, double saturation, double value);

    // Replace every entry (locked ones too) and the low colour by a generated range; see above.
    bool SetRange(double min, double max, int count, COLORREF minColor, COLORREF maxColor);
    bool SetRange(double min, double max, double step, COLORREF minColor, COLORREF maxColor);
    bool SetRangeRGB(double min, double max, int count, COLORREF minColor, COLORREF maxColor);
    bool SetRangeRGB(double min, double max, double step, COLORREF minColor, COLORREF maxColor);
    bool SetRangeRGB3(double min, double max, int count, COLORREF firstColor, COLORREF middleColor,
                      COLORREF lastColor);
    bool SetRangeRGB3(double min, double max, double step, COLORREF firstColor,
                      COLORREF middleColor, COLORREF lastColor);
    // Add a generated range to the entries: an unlocked entry of a generated value is replaced,
    // a locked one is kept. The low colour changes only when the table was empty.
    bool AddRange(double min, double max, int count, COLORREF minColor, COLORREF maxColor, bool rgb);
    bool AddRange(double min, double max, double step, COLORREF minColor, COLORREF maxColor, bool rgb);
    bool AddRange3(double min, double max, int count, COLORREF firstColor, COLORREF middleColor,
                   COLORREF lastColor);
    bool AddRange3(double min, double max, double step, COLORREF firstColor, COLORREF middleColor,
                   COLORREF lastColor);

    // Dredging differences (value = surveyed minus design level, positive = not deep enough).
    // Three ramps, each a (min colour, max colour, count) held between 1 and 256 colours, and
    // two limits: values below the over-dredge limit take the over-dredge ramp (its max colour
    // the farthest down, as the low colour), values from the over-dredge limit up to the
    // under-dredge limit the in-tolerance ramp (min colour at the over-dredge limit), values
    // from the under-dredge limit up the under-dredge ramp (max colour the farthest up). All
    // steps are the tolerance band divided by the in-tolerance count.
    void GetUnderDredgeColorRange(COLORREF& minColor, COLORREF& maxColor, unsigned& count) const;
    void GetInTolColorRange(COLORREF& minColor, COLORREF& maxColor, unsigned& count) const;
    void GetOverDredgeColorRange(COLORREF& minColor, COLORREF& maxColor, unsigned& count) const;
    void SetUnderDredgeColorRange(COLORREF minColor, COLORREF maxColor, unsigned count);
    void SetInTolColorRange(COLORREF minColor, COLORREF maxColor, unsigned count);
    void SetOverDredgeColorRange(COLORREF minColor, COLORREF maxColor, unsigned count);
    void GetUnderDredgeLimit(double& limit) const;
    void GetOverDredgeLimit(double& limit) const;
    // Limits: non-finite values are ignored. Limits the wrong way round are used swapped.
    void SetUnderDredgeLimit(double limit);
    void SetOverDredgeLimit(double limit);
    // Whether the limits follow the design model's during real-time work.
    void SetSyncWithDesignModel(bool sync);
    bool GetSyncWithDesignModel() const;
    // Replaces the entries and the low colour by the dredging-difference table of the ranges
    // and limits.
    void GenerateDredgeDiffColorTable();
    // Marks the table as a dredging-difference table (kept in its file).
    void SetDredgeDiffColTab(bool dredgeDiff);
    bool IsDredgeDiffColTab() const;

    // Reads the table from a colour-table file; false (and an empty table with the defaults)
    // when it holds no colour table. Entries that do not read are skipped, unsorted entries
    // sorted, a value listed twice keeps its first entry; each repair is listed in Errors().
    bool FileOpen(const FileObject& file);
    // Writes the table into `file`, replacing its colour-table sections (the caller saves the
    // file). False only when the table cannot be written (never for a valid table).
    bool FileSave(FileObject& file) const;
    // What the last FileOpen skipped or repaired, one line each ("Entry = text: problem").
    QStringList Errors() const;

private:
    friend class ColorTableFile;
    struct Ramp {
        COLORREF minColor;
        COLORREF maxColor;
        unsigned count;
    };
    enum class Interpolation { hsv, rgb, rgb3 };
    bool Generate(double min, double max, int count, double step, bool byStep,
                  Interpolation how, COLORREF first, COLORREF middle, COLORREF last, bool add);
    int FindValue(double value) const;

    std::vector<Entry> m_entries;
    COLORREF m_lowColor = RGB(255, 255, 255);
    QString m_lowColorName;
    Ramp m_under { 0xC0C0C0, 0x808080, 5 };
    Ramp m_inTol { RGB(255, 255, 0), RGB(0, 255, 0), 5 };
    Ramp m_over { RGB(200, 0, 0), RGB(255, 0, 0), 5 };
    double m_underLimit = 0.5;
    double m_overLimit = -0.5;
    bool m_syncWithDesignModel = false;
    bool m_dredgeDiff = false;
    QStringList m_errors;
};
