// Dialog data exchange of geographic angles, flags in edits and check boxes, both directions.
#include "QelMfc0/controls/DataExchange.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>

#include <gtest/gtest.h>

TEST(DataExchangeTest, GeoWritesFormattedAndReadsTypedAngles)
{
    QLineEdit edit;
    double value = -3.25;
    DataExchange::DDX_Geo(false, &edit, value, 1, 7, false);
    EXPECT_EQ(edit.text(), QStringLiteral("003°15'00.0\" W"));
    edit.setText(QStringLiteral("56 30 7.2 S"));
    DataExchange::DDX_Geo(true, &edit, value, 0, 0, true);
    EXPECT_NEAR(value, -56.502, 1e-9);
    edit.setText(QStringLiteral("north-ish"));
    DataExchange::DDX_Geo(true, &edit, value, 2, 7, true);
    EXPECT_EQ(value, 0.0);
}

TEST(DataExchangeTest, BoolReadsTrueWordsAndNonZeroIntegers)
{
    const struct { const char* text; bool expected; } cases[] = {
        {"TRUE", true}, {"truest", true}, {" -2", true}, {"12abc", true}, {"0", false},
        {"0.9", false}, {"", false},      {"tru", false}, {"- 3", false},
    };
    QLineEdit edit;
    for (const auto& c : cases) {
        edit.setText(QString::fromUtf8(c.text));
        bool value = !c.expected;
        DataExchange::DDX_bool(true, &edit, value);
        EXPECT_EQ(value, c.expected) << '"' << c.text << '"';
    }

    QPlainTextEdit plain;
    bool value = true;
    DataExchange::DDX_bool(false, &plain, value);
    EXPECT_EQ(plain.toPlainText(), QStringLiteral("true"));
    value = false;
    DataExchange::DDX_bool(true, &plain, value);
    EXPECT_TRUE(value);

    QSlider noText; // no control or no text: nothing happens
    DataExchange::DDX_bool(true, &noText, value);
    DataExchange::DDX_bool(true, nullptr, value);
    EXPECT_TRUE(value);
}

TEST(DataExchangeTest, CheckBoxBothDirectionsPartialReadsFalse)
{
    QCheckBox box;
    bool value = true;
    DataExchange::DDX_Check(false, &box, value);
    EXPECT_EQ(box.checkState(), Qt::Checked);

    box.setTristate(true);
    box.setCheckState(Qt::PartiallyChecked);
    value = true;
    DataExchange::DDX_Check(true, &box, value);
    EXPECT_FALSE(value);
}
