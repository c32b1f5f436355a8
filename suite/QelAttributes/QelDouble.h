#pragma once
// A double wrapped as its own type, so that an attribute value set from it is always a double.

#include "QelAttributes/QelAttributesExport.h"

class QELATTRIBUTES_EXPORT CQelDouble
{
public:
    // Holds `v`.
    explicit CQelDouble(double v = 0.0) : m_value(v) {}
    // The value held.
    double Get() const { return m_value; }
    // Replaces the value held.
    void Set(double v) { m_value = v; }

private:
    double m_value;
};
