// Typed geographic angles (StringToGeo): every result is finite, a refusal gives 0.0, blanks
// around the text change nothing, and what is read comes back through every form FormatGeogs
// writes, within half the last digit written.
#include "FuzzSupport.h"

#include <QelBase/GeoText.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

bool Same(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzz::Text(data, size);
    double value = 99.0;
    const bool ok = StringToGeo(text, value);
    FUZZ_CHECK(std::isfinite(value));
    FUZZ_CHECK(ok || Same(value, 0.0), "refused, yet %.17g", value);
    FUZZ_CHECK(!Same(value, -0.0), "a negative zero");

    double padded = 99.0;
    FUZZ_CHECK(StringToGeo(QStringLiteral(" ") + text + QStringLiteral("\t"), padded) == ok
               && Same(padded, value), "blanks around the text change it");
    if (!ok)
        return 0;

    constexpr int kDecimals = 6;
    for (unsigned flags : { 1u, 3u, 7u }) {
        const double perDegree = flags == 7 ? 3600.0 : flags == 3 ? 60.0 : 1.0;
        const double tolerance = 0.5 * std::pow(10.0, -kDecimals) / perDegree
            + 4 * std::numeric_limits<double>::epsilon() * std::fabs(value);
        for (int kind : { 10, 11, 0 }) {
            for (int style = 0; style < 4; ++style) {
                QString written;
                FUZZ_CHECK(FormatGeogs(value, flags, kDecimals, kind, written, style & 1, style & 2));
                double back = 0.0;
                FUZZ_CHECK(StringToGeo(written, back) && std::fabs(back - value) <= tolerance,
                           "%.17g written as %s reads back as %.17g", value,
                           written.toUtf8().constData(), back);
            }
        }
    }
    return 0;
}
