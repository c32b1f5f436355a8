#pragma once
// The key of a depth colour table: a column of colour boxes, the highest value on top, each
// labelled with its entry's depth in the project's depth unit and decimals, and the table's low
// colour as "Below" at the bottom. A big table is sampled to kMaxRows evenly spread entries
// (the first and the last always among them), so that every label fits. Colours are scaled
// for the colour mode when painted, as the coloured picture beside the key is.

#include <QWidget>
#include <QelBase/ColorTable.h>
#include <vector>

class ColourLegend : public QWidget {
    Q_OBJECT
public:
    // The most entry rows shown (the "Below" row comes on top of these).
    static constexpr int kMaxRows = 24;

    struct Row {
        QRect box;       // the colour box
        QRect text;      // room for the label
        QString label;
        COLORREF color;  // as the table defines it
    };

    explicit ColourLegend(QWidget* parent = nullptr);

    // Shows `table` (a copy is kept).
    void SetTable(const ColorTable& table);
    const ColorTable& Table() const { return m_table; }
    // The rows as painted, from the top.
    std::vector<Row> Rows() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    ColorTable m_table;
};
