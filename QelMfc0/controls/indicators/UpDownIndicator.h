#pragma once
// A one-dimensional depth gauge drawn into a rectangle of a host view: a bar from a reference
// depth to the current depth, coloured by whether the value lies above the reference, below
// it or inside a min/max band; an arrow-shaped pointer carrying the value as text; a label
// with the reference; a strip with the item's name; and, on request, a small round reset
// button in the top-left corner. Several gauges ("layers") may share one rectangle.
//
// It is a plain object owned by its host, not a widget: the host calls Draw from its paint
// event and forwards mouse positions to CheckResetBtn / CheckPtInIndicator.
//
// Vertical by default (larger values are drawn higher), or horizontal (larger values to the
// right). The pane, text, background and label colours go through the current colour mode
// at paint time; the three band colours are drawn as they are.
//
// Texts are drawn in the painter's background mode, as a device context draws them in its own.
// A host painter in Qt::OpaqueMode (a device context's default) gives the value text a cell in
// its background colour, which after a reference label is that label's background colour: the
// marker lines then pass under the value instead of through it. The marker lines' gaps stay
// open in either mode.
//
// Rectangles are taken as half-open: a QRect(0, 0, 300, h) covers x 0..299, and its right
// edge is x = 300 in the gauge's arithmetic.
//
// The bar stops at the strip's edges for values off the axis; the pointer's tip is drawn at
// the true position even there, while its box stays inside the strip.
//
// Bad input draws nothing rather than painting at random places: with an axis range that is
// empty or not finite, or a non-finite value, reference or (with markers shown) marker, only
// the pane is filled; with a layer index outside the layers (when there are more than one)
// or an empty rectangle, nothing at all is drawn and no point lies in the gauge.

#include "QelMfc0/QelMfc0Export.h"
#include <QImage>
#include <QPainterPath>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QelBase/QelTypes.h>
#include <QelMfc0/drawing/FontInfo.h>

class CAttributeMap;
class QFontMetrics;
class QPainter;

class QELMFC0_EXPORT UpDownIndicator
{
public:
    // Marker modes ("ShowMinMaxMarker").
    static constexpr int MARKERS_NONE = 0;      // no band, no marker lines
    static constexpr int MARKERS_FIXED = 1;     // band limits from the "MinMaxMarker" attribute
    static constexpr int MARKERS_PROGRAM = 2;   // band limits set through SetMinMaxMarker
    // Attribute keys of the gauge that the attribute library does not name.
    static inline const QString ATTR_INSIDECOLOR = QStringLiteral("InsideColor");
    static inline const QString ATTR_LABELBACKGROUNDCOLOR = QStringLiteral("LabelBackgroundColor");
    static inline const QString ATTR_SHOWMINMAXMARKER = QStringLiteral("ShowMinMaxMarker");
    static inline const QString ATTR_MINMAXMARKER = QStringLiteral("MinMaxMarker");
    static inline const QString ATTR_HORIZONTALMODE = QStringLiteral("HorzontalMode"); // sic
    // File name of the reset button's image in the common Bitmaps folder.
    static inline const QString kResetImageName = QStringLiteral("tb_UpDownReset.bmp");
    // Size of the reset button's image in pixels.
    static constexpr int kResetImageWidth = 16;
    static constexpr int kResetImageHeight = 15;
    // The colour of the image that is drawn transparent (light grey).
    static constexpr COLORREF kTransparentKey = RGB(192, 192, 192);

    // The gauge's colours. Pane, text, pointer background and label background go through the
    // colour mode when drawn; the three band colours (above, inside, below) are drawn as they are.
    struct Colors
    {
        COLORREF pane = RGB(128, 128, 128);           // fill of the whole strip
        COLORREF above = RGB(128, 128, 0);            // bar outside the band, value above the reference
        COLORREF inside = RGB(0, 128, 0);             // bar inside the min/max band
        COLORREF below = RGB(225, 0, 0);              // bar outside the band, value below the reference
        COLORREF text = 0;                            // pen, texts and marker lines
        COLORREF background = RGB(225, 255, 255);     // fill of the pointer
        COLORREF labelBackground = RGB(224, 224, 224); // name strip and reference label
    };

    // Default colours and range, not valid, one layer, vertical; loads the reset button's image
    // from the common Bitmaps folder and recolours its black for the colour mode now in force.
    UpDownIndicator();
    ~UpDownIndicator();
    UpDownIndicator(const UpDownIndicator&) = default;
    UpDownIndicator& operator=(const UpDownIndicator&) = default;

    // Reads the colours, font, axis range, marker mode (with the markers when it is 1) and
    // the horizontal mode from the host's attributes; a missing attribute keeps its setting.
    void LoadAttributes(const CAttributeMap& attributes);

    // The current value; makes the gauge valid.
    void SetDeltaValue(double value);
    // The reference value the bar starts from; makes the gauge valid.
    void SetRefValue(double value);
    // Makes the gauge invalid: only the pane is filled until a value is set again.
    void Clear();
    // The band limits; only in marker mode 2 (MARKERS_PROGRAM), otherwise ignored.
    void SetMinMaxMarker(double minValue, double maxValue);
    // How many gauges share the rectangle and which of them this one is (from 0).
    void SetNumLayers(int layers);
    void SetLayerIndex(int index);
    // The text of the name strip.
    void SetItemName(const QString& name);
    // Shows or hides the reset button.
    void ShowResetButton(bool show);
    // Horizontal (true) or vertical (false) gauge; for hosts that do not use attributes.
    void SetHorizontalMode(bool horizontal);
    // The values at the two ends of the axis; for hosts that do not use attributes.
    void SetAxisRange(double minValue, double maxValue);
    // The marker mode (MARKERS_NONE, MARKERS_FIXED, MARKERS_PROGRAM); for hosts that do not use
    // attributes.
    void SetMarkerMode(int mode);
    // All colours at once; for hosts that do not use attributes.
    void SetColors(const Colors& colors);
    const Colors& GetColors() const { return m_colors; }
    // The font of the texts; its size in points is also the pointer's size in pixels.
    void SetFont(const FontInfo& font);
    const FontInfo& GetFont() const { return m_font; }
    // The pointer's size in pixels: the font size in points, limited to a sane size.
    int GetPointerSize() const;

    // True after SetDeltaValue or SetRefValue, false after construction and Clear.
    bool IsValid() const { return m_valid; }
    // The settings as they are.
    bool IsHorizontalMode() const { return m_horizontal; }
    double GetDeltaValue() const { return m_value; }
    double GetRefValue() const { return m_refValue; }
    const QString& GetItemName() const { return m_itemName; }
    bool IsResetButtonShown() const { return m_showResetButton; }
    int GetMarkerMode() const { return m_markerMode; }
    void GetAxisRange(double& minValue, double& maxValue) const;
    void GetMinMaxMarker(double& minValue, double& maxValue) const;
    // The reset button's image as drawn (transparent where the key grey was); null when the
    // file could not be loaded.
    const QImage& GetResetImage() const { return m_resetImage; }

    // Paints this gauge's strip of `rect`: the pane, and when valid the bar, axis, labels,
    // pointer, marker lines and reset button. The painter's state is left as it was.
    void Draw(QPainter* painter, const QRect& rect);
    // True only when the reset button is shown and the point lies in it at its last drawn place.
    bool CheckResetBtn(const QPoint& point) const;
    // True when the point lies in this gauge's strip of `rect` (the strip Draw paints).
    bool CheckPtInIndicator(const QPoint& point, const QRect& rect) const;

private:
    // A rectangle with exclusive right and bottom edges, as the gauge computes with them.
    struct Box
    {
        int left = 0, top = 0, right = 0, bottom = 0;
    };
    // The gauge's own frame: `a` runs along the axis and `c` across it, from the axis line
    // towards the name strip. A vertical gauge has a = y and c = x, a horizontal one a = x and
    // c = y: the one is the other mirrored on the diagonal, which maps pixels onto pixels.
    struct AxisFrame
    {
        bool horizontal = false;
        QPoint At(int a, int c) const;
        // The half-open box a1..a2 by c1..c2 on the screen, widened by `padLeft` pixels to the
        // screen's left; empty when inverted.
        QRect Box(int a1, int a2, int c1, int c2, int padLeft = 0) const;
        // A screen extent's part along and across the axis.
        int Along(const QSize& size) const;
        int Across(const QSize& size) const;
    };
    // Where the bar may lie in the frame: aLow..aHigh along the axis, cStart..cEnd across it.
    struct Span
    {
        int aLow, aHigh, cStart, cEnd;
    };
    // Positions along the axis of the reference, the value and the two markers.
    struct Marks
    {
        int ref, value, min, max;
    };

    bool StripOf(const QRect& rect, Box& strip) const;
    bool Drawable() const;
    int Position(double value, double scale, int origin) const;
    void DrawIndicator(QPainter* painter, const Box& r);
    void DrawName(QPainter* painter, const Box& r, int cName, const QFont& nameFont) const;
    void DrawBar(QPainter* painter, const AxisFrame& frame, const Span& span, const Marks& at) const;
    void DrawPointer(QPainter* painter, const QPoint (&p)[7], bool together) const;
    void DrawMarkerLines(QPainter* painter, const QPoint& a1, const QPoint& a2,
                         const QPoint& b1, const QPoint& b2) const;
    void DrawResetButton(QPainter* painter, const Box& r);
    void BlitButton(QPainter* painter, const QRectF& bounds) const;
    static void UpdateColorForNightView(QImage& image, COLORREF color);
    static void FillSpan(QPainter* painter, const QRect& box, COLORREF color);

    Colors m_colors;
    FontInfo m_font;
    double m_axisMin = -10.0;
    double m_axisMax = 10.0;
    double m_maxMarker = 0.0;
    double m_minMarker = 0.0;
    int m_markerMode = MARKERS_NONE;
    double m_value = 0.0;
    bool m_valid = false;
    double m_refValue = 0.0;
    bool m_horizontal = false;
    int m_numLayers = 1;
    int m_layerIndex = 0;
    QString m_itemName;
    QPainterPath m_resetRegion;   // at its last drawn place
    bool m_showResetButton = false;
    QImage m_resetImage;          // ARGB32 with the key grey transparent; null when not loaded
};
