// All frame documents that live in the process. What one document gives up, others may still name: a window
// that leaves a cache, a definition that goes, records that are deleted.
#pragma once

#include <unordered_set>

class CBaseFrameDoc;
class CBaseUnitInfo;
class CBaseUnitWnd;

namespace splitframe {

class DocumentList
{
public:
    static void Add(CBaseFrameDoc* pDoc);
    static void Remove(CBaseFrameDoc* pDoc);

    /// Takes a window out of the caches of all documents but one.
    static void ForgetCached(const CBaseUnitWnd* pUnit, const CBaseFrameDoc* pKeeper);

    /// Whether a document other than pDoc has the window in its cache or among its units.
    static bool IsListedElsewhere(const CBaseUnitWnd* pUnit, const CBaseFrameDoc* pDoc);

    /// The records and styles of a definition document are about to be deleted: documents opened from it give
    /// theirs up, and no unit points to such a record any more.
    static void DefinitionIsCleared(CBaseFrameDoc* pDefinition);

    /// These records are about to be deleted: no unit points to one any more, and no style that was read
    /// from an archive lists one.
    static void RecordsAreDeleted(const std::unordered_set<const CBaseUnitInfo*>& setDoomed);

    /// The definition document itself goes.
    static void DefinitionIsDeleted(CBaseFrameDoc* pDefinition);
};

} // namespace splitframe
