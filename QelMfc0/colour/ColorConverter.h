#pragma once
// Conversion of colours for a colour mode: optional inversion, then a factor per channel.

#include "QelMfc0/QelMfc0Export.h"
#include <QObject>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QelBase/QelTypes.h>
#include <array>

class FileObject;

class QELMFC0_EXPORT ColorConverter
{
    Q_GADGET
public:
    // The colour modes of the display.
    enum mode : qint32 { unknown = 0, normal = 1, night = 2, twilight = 3, bright = 4 };
    Q_ENUM(mode)

    // The colour-map file section and keys of the converter's parameters.
    static inline const QString kSection = QStringLiteral("PARAMS");
    static inline const QString kRedKey = QStringLiteral("red");
    static inline const QString kGreenKey = QStringLiteral("green");
    static inline const QString kBlueKey = QStringLiteral("blue");
    static inline const QString kInvertKey = QStringLiteral("invert");

    // Factors 1.0, no inversion: every colour is converted unchanged.
    ColorConverter();
    virtual ~ColorConverter();

    // Sets the channel factors and the invert flag; a negative or non-finite factor counts as 1.0.
    void SetParameters(double red, double green, double blue, bool invert);
    // Back to factors 1.0 and no inversion.
    void Reset();
    // Reads "red", "green", "blue" and "invert" of the "PARAMS" section (a value may end with a
    // "; comment"); without the section, and for keys it does not hold or whose value does not
    // read, the defaults apply. Values that do not read, unusable factors and unknown keys are
    // appended to `errors` (when given) in the form ColorMap::GetErrors uses. True when the
    // section was there.
    bool Load(const FileObject& file, QStringList* errors = nullptr);

    double GetRedFactor() const { return m_factors[0]; }
    double GetGreenFactor() const { return m_factors[1]; }
    double GetBlueFactor() const { return m_factors[2]; }
    bool GetInvert() const { return m_invert; }

    // The colour with its top byte cleared, inverted when `invert` is set, and each channel
    // scaled by its factor (rounded half up, at most 255). Red is the lowest byte.
    COLORREF Convert(COLORREF color, bool invert) const
    {
        const quint32 c = invert ? ~color : color;
        return COLORREF(m_scale[0][c & 0xFF]) | (COLORREF(m_scale[1][(c >> 8) & 0xFF]) << 8)
             | (COLORREF(m_scale[2][(c >> 16) & 0xFF]) << 16);
    }

    // The scaled value of every channel value, per channel (0 red, 1 green, 2 blue).
    using ScaleTable = std::array<std::array<quint8, 256>, 3>;
    const ScaleTable& GetScaleTable() const { return m_scale; }

private:
    void BuildScaleTable();

    std::array<double, 3> m_factors { 1.0, 1.0, 1.0 };
    bool m_invert = false;
    ScaleTable m_scale {};
};

Q_DECLARE_METATYPE(ColorConverter::mode)
