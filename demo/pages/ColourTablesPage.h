#pragma once
// Gallery page of the colour tables: a survey's depth grid coloured by a colour table of the
// project, the table's key beside it, and the table editor. The picture follows the chosen
// table, the colour mode, the project and every save of the table's file (the editor's Apply).

#include "BathymetryGrid.h"

#include <QImage>
#include <QWidget>
#include <QelBase/ColorTable.h>
#include <memory>

class CColorTableEditor;
class QDialog;
class ColourLegend;
class FileTypeCombo;
class QFileSystemWatcher;
class QLabel;
class QPushButton;
class QTimer;

class ColourTablesPage : public QWidget {
    Q_OBJECT
public:
    // The editors of tables that are made in their own way, each shown on its table of the
    // sample project.
    enum class SpecialEditor { DredgeDifferences, BottomClasses, MapColours };
    static constexpr SpecialEditor kSpecialEditors[] = { SpecialEditor::DredgeDifferences, SpecialEditor::BottomClasses, SpecialEditor::MapColours };

    explicit ColourTablesPage(QWidget* parent = nullptr);
    ~ColourTablesPage() override;

    // Shows the table of that name; false when the colour-table folder has no such table.
    bool SelectTable(const QString& name);
    // The name of the table shown, empty when none.
    QString TableName() const;
    // The grid's depths and their colours (one pixel a cell, no-data cells transparent; made
    // when the page is first shown), and where the picture is drawn, in the page's coordinates.
    const BathymetryGrid& Grid() const;
    const QImage& ColouredGrid() const { return m_image; }
    QRect GridRect() const;
    // Opens the table editor on the table shown and colours again with what it saved.
    void EditTable();
    // The table editor on the table shown, placed beside the picture but not shown (the caller
    // shows and deletes it); null when no table is shown. Closing it colours again.
    CColorTableEditor* OpenEditor();
    // Opens that editor on its table and colours again with what it saved.
    void EditSpecial(SpecialEditor kind);
    // That editor on its table, placed like OpenEditor's but not shown (the caller shows and
    // deletes it). Closing it colours again.
    QDialog* OpenSpecialEditor(SpecialEditor kind);
    // The name of that editor's table and the file name its screenshots go by.
    static QString SpecialTableName(SpecialEditor kind);
    static QString SpecialSlug(SpecialEditor kind);

protected:
    void showEvent(QShowEvent* event) override;

private:
    // Reads the chosen table from its file again and colours with it.
    void LoadTable();
    // Colours the grid with the table as the current colour mode shows it; while the page is
    // hidden only once it is shown again.
    void Colour();
    void WatchTableFile();
    // Beside the window when there is room, so that the editor's Apply shows on the picture.
    void Place(QDialog* editor);

    mutable std::unique_ptr<const BathymetryGrid> m_grid; // computed when first needed
    bool m_colourWhenShown = false;
    ColorTable m_table;        // as read from the file
    QString m_loadedPath;      // the file m_table came from
    QString m_problem;         // why the table shown is not the file's, empty when it is
    QImage m_image;
    FileTypeCombo* m_tables = nullptr;
    QPushButton* m_edit = nullptr;
    QWidget* m_picture = nullptr;
    ColourLegend* m_legend = nullptr;
    QLabel* m_status = nullptr;
    QFileSystemWatcher* m_watcher = nullptr;
    QTimer* m_reload = nullptr;
};
