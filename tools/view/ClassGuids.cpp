// Walks all elements of the document with the markup's own cursors and reads the texts of the GUID elements.
#include "ClassGuids.h"

#include "definition/LayoutValues.h"
#include "platform/base/String.h"
#include "xml/Markup.h"

#include <array>
#include <cstring>
#include <set>
#include <utility>

namespace viewer {
namespace {

// Each value once, in the order in which they were found.
class GuidList
{
public:
    void Add(const GUID& guid)
    {
        std::array<unsigned char, sizeof(GUID)> bytes;
        std::memcpy(bytes.data(), &guid, sizeof guid);
        if (m_setKnown.insert(bytes).second)
            m_guids.push_back(guid);
    }
    std::vector<GUID> Take() { return std::move(m_guids); }

private:
    std::set<std::array<unsigned char, sizeof(GUID)>> m_setKnown;
    std::vector<GUID> m_guids;
};

// As the loader reads it: text that is no GUID is the zero GUID.
GUID ValueOf(const CString& strText)
{
    GUID guid = {};
    splitframe::TextToGuid(strText, guid);
    return guid;
}

} // namespace

std::vector<GUID> GatherClassGuids(CMarkup& markup)
{
    GuidList list;
    list.Add(GUID{});
    markup.ResetPos();
    do {
        while (markup.FindElem()) {
            if (markup.GetTagName() == L"GUID")
                list.Add(ValueOf(markup.GetData()));
            markup.IntoElem();
        }
    } while (markup.OutOfElem());
    markup.ResetPos();
    return list.Take();
}

} // namespace viewer
