// The units file reader (UnitDefinition) and the units section of a project (CQelUnitCnv::Load).
// Checked: every item read is well formed, the item-by-item iteration sees the same items, an
// item written back in the file's syntax reads as itself, and the units of a project survive
// a save and a load.
#include "FuzzSupport.h"

#include <QelBase/FileObject.h>
#include <QelBase/QelUnitCnv.h>
#include <QelConfigure/UnitDefinition.h>

#include <cmath>

namespace {

bool SameItem(const UnitDefinition::Item& a, const UnitDefinition::Item& b)
{
    return a.key == b.key && a.menuText == b.menuText && a.factor == b.factor && a.offset == b.offset
        && a.abbreviation == b.abbreviation;
}

void CheckGroup(UnitDefinition& units, int group)
{
    const QList<UnitDefinition::Item> items = units.GetGroupItems(group);
    FUZZ_CHECK(items.size() <= units.GetEntries(UnitDefinition::GroupSection(group)).size());
    for (const UnitDefinition::Item& item : items) {
        FUZZ_CHECK(!item.key.isEmpty() && item.key == item.key.trimmed());
        FUZZ_CHECK(!item.menuText.isEmpty() && item.menuText == item.menuText.trimmed());
        FUZZ_CHECK(!item.abbreviation.isEmpty() && item.abbreviation == item.abbreviation.trimmed());
        FUZZ_CHECK(std::isfinite(item.factor) && item.factor != 0.0 && std::isfinite(item.offset));

        const QString written = QStringLiteral("%1; %2; %3; %4")
                                    .arg(item.menuText, FileObject::DoubleText(item.factor),
                                         FileObject::DoubleText(item.offset), item.abbreviation);
        UnitDefinition::Item back;
        FUZZ_CHECK(UnitDefinition::ParseItem(item.key, written, back) && SameItem(back, item),
                   "%s written back as %s does not read as itself", fuzz::Show(item.key).constData(),
                   fuzz::Show(written).constData());
    }

    UnitDefinition::Item item;
    bool more = units.GetFirstGroupItem(group, item.key, item.menuText, item.factor, item.offset, item.abbreviation);
    for (const UnitDefinition::Item& expected : items) {
        FUZZ_CHECK(more && SameItem(item, expected));
        more = units.GetNextGroupItem(item.key, item.menuText, item.factor, item.offset, item.abbreviation);
    }
    FUZZ_CHECK(!more);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    UnitDefinition units;
    units.LoadFromText(fuzz::Text(data, size));
    for (int group = 0; group <= 7; ++group)
        CheckGroup(units, group);
    // Groups of other numbers, as the file names them.
    for (const QString& section : units.GetSections()) {
        bool isNumber = false;
        const int group = section.mid(5).toInt(&isNumber);
        if (section.startsWith(QLatin1String("Group"), Qt::CaseInsensitive) && isNumber)
            CheckGroup(units, group);
    }

    // The same text as the units section of a project.
    CQelUnitCnv converter;
    converter.Load(units, QStringLiteral("Units"));
    FileObject saved;
    converter.Save(saved, QStringLiteral("Units"));
    CQelUnitCnv reloaded;
    reloaded.Load(saved, QStringLiteral("Units"));
    for (int kind = 0; kind < 30; ++kind)
        FUZZ_CHECK(reloaded.GetUnitKey(kind) == converter.GetUnitKey(kind), "units of kind %d change on saving", kind);
    return 0;
}
