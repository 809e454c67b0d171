// The rules that a ribbon has to keep.
#pragma once

#include "package/Xml.h"

namespace host
{

// Throws std::runtime_error with the reason when a host of this major version would refuse the ribbon: a wrong
// namespace, an element out of place, an attribute that the element does not have or whose value is none of its kind,
// an id that is missing or given twice. Of what Office knows, the elements and attributes that the stand-in has a use
// for are allowed.
void CheckRibbon(const XmlElement& root, int hostVersion);

} // namespace host
