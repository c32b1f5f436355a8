// Typed values (StringToValue): every result is finite, a refusal gives 0.0, blanks around the
// text change nothing, a plain number reads as the number reader of files reads it, and what is
// read comes back through FormatDouble, plain and as feet and inches.
#include "FuzzSupport.h"

#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>

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
    bool ok = false;
    const double value = StringToValue(text, &ok);
    FUZZ_CHECK(std::isfinite(value));
    FUZZ_CHECK(ok || Same(value, 0.0), "refused, yet %.17g", value);
    FUZZ_CHECK(!Same(value, -0.0), "a negative zero");
    FUZZ_CHECK(Same(StringToValue(text), value));

    bool paddedOk = false;
    const double padded = StringToValue(QStringLiteral("\t") + text + QStringLiteral(" "), &paddedOk);
    FUZZ_CHECK(paddedOk == ok && Same(padded, value), "blanks around the text change it");

    double number = 0.0;
    if (TextToDouble(text, number))
        FUZZ_CHECK(ok && value == number, "[%s] is %.17g in a file but %.17g typed",
                   fuzz::Show(text).constData(), number, value);
    if (!ok)
        return 0;

    const double relative = 4 * std::numeric_limits<double>::epsilon() * std::fabs(value);
    for (unsigned feet : { 0u, 1u }) {
        constexpr int kDecimals = 9;
        const QString written = FormatDouble(value, kDecimals, feet);
        bool backOk = false;
        const double back = StringToValue(written, &backOk);
        const double tolerance = 0.5e-9 / (feet ? 12.0 : 1.0) + relative;
        FUZZ_CHECK(backOk && std::fabs(back - value) <= tolerance,
                   "%.17g written as %s reads back as %.17g", value, written.toUtf8().constData(), back);
    }
    return 0;
}
