// The tables.
#include "ClassTables.h"

#include "WorkbenchHelper.h"
#include "units/BannerUnit.h"
#include "units/ChartUnit.h"
#include "units/ClockUnit.h"
#include "units/DetailUnit.h"
#include "units/DiagramUnit.h"
#include "units/FiguresUnit.h"
#include "units/HistoryUnit.h"
#include "units/LogUnit.h"
#include "units/SettingsUnit.h"
#include "units/TableUnit.h"

#include <iterator>

ClassTable GetUnitClasses()
{
    static const GUID guids[] = {GUID_BANNER_UNIT,   GUID_CHART_UNIT,   GUID_CLOCK_UNIT,   GUID_DETAIL_UNIT,
                                 GUID_DIAGRAM_UNIT,  GUID_FIGURES_UNIT, GUID_HISTORY_UNIT, GUID_LOG_UNIT,
                                 GUID_SETTINGS_UNIT, GUID_TABLE_UNIT};
    static CRuntimeClass* const classes[] = {RUNTIME_CLASS(CBannerUnit),   RUNTIME_CLASS(CChartUnit),
                                             RUNTIME_CLASS(CClockUnit),    RUNTIME_CLASS(CDetailUnit),
                                             RUNTIME_CLASS(CDiagramUnit),  RUNTIME_CLASS(CFiguresUnit),
                                             RUNTIME_CLASS(CHistoryUnit),  RUNTIME_CLASS(CLogUnit),
                                             RUNTIME_CLASS(CSettingsUnit), RUNTIME_CLASS(CTableUnit)};
    static_assert(std::size(guids) == std::size(classes));
    return {guids, classes, static_cast<int>(std::size(guids))};
}

ClassTable GetHelperClasses()
{
    static const GUID guids[] = {GUID_WORKBENCH_HELPER};
    static CRuntimeClass* const classes[] = {RUNTIME_CLASS(CWorkbenchHelper)};
    static_assert(std::size(guids) == std::size(classes));
    return {guids, classes, static_cast<int>(std::size(guids))};
}
