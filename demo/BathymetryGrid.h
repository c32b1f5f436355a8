#pragma once
// A synthetic multibeam depth grid of a harbour approach, the same on every run: the gallery
// colours it with the colour tables of the project.
//
// The grid has 640 columns (west to east) by 480 rows (row 0 the northern edge) of 2 m cells,
// an area of 1280 m by 960 m. Depths are float metres, negative down, between -25 and -2:
//   - natural seabed deepening from about -9 m in the north-west to about -17 m in the
//     south-east, with smooth seeded noise of a few decimetres;
//   - a dredged channel crossing from west to east along a gentle curve: a 140 m wide bottom
//     at -21.5 m and side slopes of 1:5 up to the seabed;
//   - sand waves outside the channel (up to 0.7 m high, 32 m apart, crests running north-north-east,
//     fading towards the shoal), and flattened remnants of them on the channel bottom;
//   - a shoal in the north-west rising to -2.5 m;
//   - a scour hole at the channel's southern edge near the east side, down to -25 m;
//   - no data (NaN) outside the surveyed swaths along the northern and southern edges (a wavy
//     boundary 6 to 16 rows deep) and in an elliptic gap where a moored barge blocked the survey.
// Landmark cells name places of known depth (the tests colour them).

#include <QPoint>
#include <QtGlobal>
#include <vector>

class BathymetryGrid
{
public:
    static constexpr int kColumns = 640;
    static constexpr int kRows = 480;
    static constexpr double kCellSize = 2.0; // metres

    // Computes the grid.
    BathymetryGrid();

    int Columns() const { return kColumns; }
    int Rows() const { return kRows; }
    qsizetype CellCount() const { return qsizetype(m_depths.size()); }
    // The depth of a cell; NaN for no data and for cells outside the grid.
    float Depth(int column, int row) const;
    // All depths, row by row from the northern edge, kColumns floats a row.
    const float* Values() const { return m_depths.data(); }

    // On the channel's axis, in the middle of its flat bottom (-21.5 m within 0.3 m).
    static QPoint ChannelCell();
    // The top of the shoal (-2.5 m within 0.3 m; shallower than -5 m for 20 cells around).
    static QPoint ShoalCell();
    // The bottom of the scour hole (about -25 m).
    static QPoint ScourCell();
    // The middle of the gap under the barge (no data; 10 cells around too).
    static QPoint GapCell();

private:
    std::vector<float> m_depths;
};
