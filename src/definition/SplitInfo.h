// The record of one split line of a style, as a layout definition writes it.
#pragma once

/// A split line by names: which two parts it divides, which way, and at what rate. Names hold at most 19
/// characters and their terminator. A new record is filled with zeros.
struct _SPLIT_INFO
{
    /// The line's own name.
    wchar_t szName[20] = {};
    /// "H_LINE": a horizontal line, one part above the other. Any other text: a vertical line.
    wchar_t szType[20] = {};
    /// The user may drag the line.
    bool bMobile = false;
    /// The left or upper part: another line of the style, or a unit.
    wchar_t szLeft[20] = {};
    /// The right or lower part.
    wchar_t szRight[20] = {};
    /// The first part's share of the free space, 0.0 to 1.0.
    double dLRate = 0.0;
};
