// Keeps the good layout until there is a better one.
#include "LayoutSource.h"

#include <utility>

namespace viewer {

LayoutSource::LayoutSource(std::string strFile, Messages& messages)
    : m_strFile(std::move(strFile)), m_messages(messages)
{
}

LayoutSource::~LayoutSource()
{
    if (m_pLayout)
        m_messages.SetText(m_pLayout->GetText(), {});
}

bool LayoutSource::Read()
{
    auto pNew = std::make_unique<LayoutFile>();
    const bool bRead = pNew->Read(m_strFile, m_messages);
    m_stamp = pNew->GetStamp();
    if (bRead)
        m_pLayout = std::move(pNew);
    else if (m_pLayout)
        m_pLayout->TellPlaces(m_messages);
    return bRead;
}

} // namespace viewer
