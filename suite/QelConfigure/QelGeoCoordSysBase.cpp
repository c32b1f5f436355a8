#include "QelGeoCoordSysBase.h"

QelGeoCoordSysBase::~QelGeoCoordSysBase() = default;
