// The colour-table reader (ColorTable::FileOpen over a FileObject) and the table's editing
// operations. Checked: whatever the file, the table is sorted with unique finite values and
// 24-bit colours, every repair is reported at most once per line, a table written and read back
// is the same table without errors, and the operations after the first NUL byte (ranges, added
// ranges, inserts, removals, dredging tables) keep those rules and the colour of a value.
#include "FuzzSupport.h"

#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>

#include <cmath>
#include <cstring>

namespace {

void CheckTable(const ColorTable& table)
{
    const auto& entries = table.Entries();
    FUZZ_CHECK(table.NumEntries() <= ColorTable::kMaxEntries);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        FUZZ_CHECK(std::isfinite(entries[i].value), "entry %zu not finite", i);
        FUZZ_CHECK(i == 0 || entries[i - 1].value < entries[i].value, "entry %zu out of order", i);
        FUZZ_CHECK((entries[i].color >> 24) == 0, "colour %08x", entries[i].color);
        FUZZ_CHECK(table.GetColor(entries[i].value) == entries[i].color, "colour of entry %zu", i);
    }
    FUZZ_CHECK((table.LowColor() >> 24) == 0);
    if (!entries.empty())
        FUZZ_CHECK(table.GetColor(std::nextafter(entries.front().value, -INFINITY)) == table.LowColor());
}

void CheckRoundTrip(const ColorTable& table)
{
    FileObject file;
    FUZZ_CHECK(table.FileSave(file));
    FileObject reread;
    reread.LoadFromText(file.ToText());
    ColorTable back;
    FUZZ_CHECK(back.FileOpen(reread));
    FUZZ_CHECK(back.Errors().isEmpty(), "%s", back.Errors().join(QLatin1Char('\n')).toUtf8().constData());
    FUZZ_CHECK(back == table, "the table read back differs");
}

// Reads numbers for the operations from the bytes after the NUL.
class Operations
{
public:
    explicit Operations(const QByteArray& bytes) : m_bytes(bytes) {}
    bool AtEnd() const { return m_pos >= m_bytes.size(); }
    quint8 Byte() { return AtEnd() ? 0 : quint8(m_bytes[m_pos++]); }
    double Double()
    {
        double value = 0.0;
        char raw[sizeof(double)] = {};
        for (char& c : raw)
            c = char(Byte());
        std::memcpy(&value, raw, sizeof value);
        return value;
    }
    COLORREF Color() { return RGB(Byte(), Byte(), Byte()); }
    // A step that gives at most about 1024 entries over [a, b] (when it is usable at all).
    double Step(double a, double b)
    {
        const double step = Double();
        const double span = std::fabs(b - a);
        return span / step <= 1024.0 ? step : span / 1024.0;
    }

private:
    QByteArray m_bytes;
    qsizetype m_pos = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray text, operations;
    fuzz::Split(data, size, text, operations);
    FileObject file;
    file.LoadFromText(QString::fromUtf8(text));
    ColorTable table;
    const bool read = table.FileOpen(file);
    FUZZ_CHECK(read == file.HasSection(QStringLiteral("ColorTable")));
    const int lines = int(file.GetValues(QStringLiteral("ColorTable"), QStringLiteral("Entry")).size());
    FUZZ_CHECK(table.Errors().size() <= lines + 2 + 13, "%d errors for %d lines", int(table.Errors().size()), lines);
    CheckTable(table);
    CheckRoundTrip(table);

    Operations ops(operations);
    for (int step = 0; step < 16 && !ops.AtEnd(); ++step) {
        const ColorTable before = table;
        const quint8 op = ops.Byte();
        const double a = ops.Double(), b = ops.Double();
        // Counts up to 1025 colours keep each step quick under the sanitizers.
        const int count = int(ops.Byte()) * 4 + int(ops.Byte() % 6);
        bool changed = true;
        switch (op % 8) {
        case 0: changed = table.SetRange(a, b, count, ops.Color(), ops.Color()); break;
        case 1: changed = table.SetRangeRGB(a, b, ops.Step(a, b), ops.Color(), ops.Color()); break;
        case 2: changed = table.AddRange(a, b, count, ops.Color(), ops.Color(), op & 8); break;
        case 3: changed = table.AddRange3(a, b, ops.Step(a, b), ops.Color(), ops.Color(), ops.Color()); break;
        case 4: changed = table.AddEntry(a, ops.Color(), op & 8, QString()) >= 0; break;
        case 5: changed = table.RemoveEntry(count); break;
        case 6:
            table.SetOverDredgeLimit(a);
            table.SetUnderDredgeLimit(b);
            table.SetInTolColorRange(ops.Color(), ops.Color(), unsigned(count));
            table.GenerateDredgeDiffColorTable();
            break;
        default: table.ClearEntries(op & 8); break;
        }
        if (!changed)
            FUZZ_CHECK(table == before, "a refused operation %d changed the table", op % 8);
        CheckTable(table);
    }
    CheckRoundTrip(table);
    return 0;
}
