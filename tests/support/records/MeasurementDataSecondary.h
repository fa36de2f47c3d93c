#pragma once

#include <tests/support/records/MeasurementData.h>

#include <lvdata/records/MeasurementDataSecondary.h>  // has the members of its base
