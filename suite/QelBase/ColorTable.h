#pragma once
// A colour table of survey values: entries sorted by value, each with a colour, a locked flag
// and a name, and a low colour for values below the first entry.

#include "QelBase/QelBaseExport.h"
#include <QString>
#include <QelBase/QelTypes.h>
#include <vector>

class QELBASE_EXPORT ColorTable
{
public:
    struct Entry {
        double value = 0.0;
        COLORREF color = 0;
        bool locked = false;
        QString name;
    };

    ColorTable();
    virtual ~ColorTable();

    // Number of entries, in ascending order of value.
    int NumEntries() const;
    // Value, colour, locked flag and name of entry `index`; defaults for an index out of range.
    double EntryValue(int index) const;
    COLORREF EntryColor(int index) const;
    bool EntryLocked(int index) const;
    QString EntryName(int index) const;
    // Number of locked entries.
    int NumLocked() const;

    // Inserts an entry in value order (after entries of the same value); returns its index,
    // -1 for a non-finite value.
    int InsertEntry(double value, COLORREF color, bool locked);
    // As InsertEntry, with a name.
    int AddEntry(double value, COLORREF color, bool locked, const QString& name);
    // Removes entry `index`; false when out of range.
    bool RemoveEntry(int index);
    // Changes the colour of entry `index`; false when out of range.
    bool SetEntryColor(int index, COLORREF color);
    // Removes every entry, or only the unlocked ones when `keepLocked`.
    void ClearEntries(bool keepLocked = false);

    // The colour for values below the first entry (and for an empty table).
    COLORREF LowColor() const;
    void SetLowColor(COLORREF color);

    // The colour of a value: that of the last entry whose value is not above it, else the low
    // colour; NaN gives the low colour.
    COLORREF GetColor(double value) const;
    // Black or white, whichever reads better on `background`.
    static COLORREF GetContrastColor(COLORREF background);

private:
    std::vector<Entry> m_entries;
    COLORREF m_lowColor = RGB(255, 255, 255);
};
