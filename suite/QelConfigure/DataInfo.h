#pragma once
// The identifier of a data item of the suite's data definition: its group, its item number in
// the group and its format (DataDefinition::Format), read from text "group,item,format".

#include "QelConfigure/QelConfigureExport.h"
#include <QString>
#include <QStringView>

class QELCONFIGURE_EXPORT CDataInfo
{
public:
    CDataInfo();
    CDataInfo(int group, int item, int format);

    // Reads "group,item,format" (blanks allowed around the numbers, which are whole numbers
    // from 0 up); false, and the identifier unchanged, for any other text.
    bool SetFromString(const QString& text);
    // The identifier as "group,item,format".
    QString ToString() const;
    // The three parts.
    void GetInfo(int& group, int& item, int& format) const;
    int Group() const;
    int Item() const;
    int Format() const;
    // True when it was set (constructed with parts or read from text).
    bool IsValid() const;

    // Reads a whole number from 0 up (decimal digits only, blanks around them allowed) as the
    // parts are read; false, and `value` unchanged, for anything else or a number beyond int.
    static bool ReadWholeNumber(QStringView text, int& value);

private:
    int m_group = -1;
    int m_item = -1;
    int m_format = -1;
};
