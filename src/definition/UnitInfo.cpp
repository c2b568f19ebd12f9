// The unit record's defaults: free in both directions, framed, placed by rates.
#include "definition/UnitInfo.h"

CBaseUnitInfo::CBaseUnitInfo()
    : m_bGlobal(false), m_guid{}, m_cx(0), m_cy(0), m_x(0), m_y(0), m_dLeftRate(0.0), m_dTopRate(0.0),
      m_dRightRate(0.0), m_dBottomRate(0.0), m_nBorderStyle(1), m_nMaxHeight(10000), m_nMinHeight(0),
      m_nMaxWidth(10000), m_nMinWidth(0), m_dHeightRate(10.0), m_dWidthRate(10.0)
{
}

CBaseUnitInfo::~CBaseUnitInfo() = default;

CBaseUnitInfo& CBaseUnitInfo::operator=(CBaseUnitInfo& other)
{
    m_nMaxHeight = other.m_nMaxHeight;
    m_nMinHeight = other.m_nMinHeight;
    m_nMaxWidth = other.m_nMaxWidth;
    m_nMinWidth = other.m_nMinWidth;
    m_dHeightRate = other.m_dHeightRate;
    m_dWidthRate = other.m_dWidthRate;
    return *this;
}
