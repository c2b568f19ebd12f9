// CStringArray: a list of texts.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/String.h"

/// A list of texts with checked indices; copies what it is given.
class CStringArray : public CArray<CString, const CString&>
{
};
