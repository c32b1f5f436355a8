#pragma once
// The colour-table file format (file type 25, docs/formats.md "Colour tables"): reads a
// ColorTable from the sections of a FileObject, repairing what it can, and writes it back.

#include "QelBase/QelBaseExport.h"
#include <QStringList>

class ColorTable;
class FileObject;

class QELBASE_EXPORT ColorTableFile
{
public:
    // Reads `table` from `file` (the table is expected fresh). False when the file has no
    // colour-table section. Every skipped or repaired line is appended to `errors`.
    static bool Read(const FileObject& file, ColorTable& table, QStringList& errors);
    // Replaces the colour-table sections of `file` by `table`.
    static bool Write(const ColorTable& table, FileObject& file);
};
