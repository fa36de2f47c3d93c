#pragma once

/// The whole public interface of the library.

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/core/DataObject.h>
#include <lvdata/core/Description.h>
#include <lvdata/core/ParseResult.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/core/PrimaryColours.h>
#include <lvdata/core/Quantity.h>
#include <lvdata/core/checked.h>
#include <lvdata/core/colour.h>
#include <lvdata/core/quantities.h>
#include <lvdata/export.h>
#include <lvdata/records/EveryRecord.h>
#include <lvdata/records/RecordClass.h>
#include <lvdata/records/types.h>
#include <lvdata/version.h>
#include <lvdata/xml/Limits.h>
#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/XMLView.h>
#include <lvdata/xml/lexical_cast.h>
#include <lvdata/xml/property.h>
#include <lvdata/xml/split_string.h>
