// Makes documents of the XML DOM service.
#pragma once

class IUnknown;

namespace splitframe {

/// A new, empty document with one reference, the caller's; null when memory runs out.
IUnknown* NewDomDocument();

} // namespace splitframe
