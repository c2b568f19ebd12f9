// New shares in the text of a layout file: only the values of LRATE change.
#pragma once

#include "LineRates.h"
#include "xml/TextEdit.h"

#include <string>
#include <vector>

class CMarkup;

namespace viewer {

/// What becomes of a text or, with a message, why it can't be changed.
struct RateEdits
{
    std::vector<TextEdit> edits; // in the order of the text
    std::string strError;
    int nErrorPosition = -1; // in the text; -1: nowhere in particular
};

/// How a layout's text is to be changed for lines to have the shares that their records have. Leaves no
/// cursor set.
RateEdits PlanRates(CMarkup& markup, const std::vector<ChangedRate>& changed);

} // namespace viewer
