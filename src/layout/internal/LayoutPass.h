// One layout of a subtree: divides a rectangle among the panes and moves their windows, in up to two passes.
// Knows handles and records; promises to survive whatever the units' hooks do while it runs.
#pragma once

#include "layout/internal/NodeTable.h"

#include <cstdint>
#include <vector>

namespace splitframe {

class CLayoutPass
{
public:
    explicit CLayoutPass(CSplitLine& start);
    CLayoutPass(const CLayoutPass&) = delete;
    CLayoutPass& operator=(const CLayoutPass&) = delete;
    ~CLayoutPass();

    /// The rectangle that the subtree's windows cover now.
    CRect GetViewRect();
    /// Lays the subtree out; does nothing once its first node is gone.
    void LayOut(const CRect& rc);

    /// A node dies: every layout that is under way leaves it out from now on.
    static void Forget(const CSplitLine* pNode);

private:
    // A first side that waits until its line's second side is laid out.
    struct Waiting
    {
        CSplitLine* pLine; // null when it has died meanwhile
        int nFirst;        // its first side in table nTable, -1 without one
        unsigned nTable;
        unsigned long nSeen;
        CRect rc;
    };

    bool IsTableGood() const;
    void BuildTable(CSplitLine& start);
    void FoldSizesAt(int nIndex);
    unsigned long HostCode() const;
    void DropDeadLines();
    void Resume(const Waiting& side);
    void Descend(int nIndex, CRect rc, unsigned long nSeen);
    void Place(CSplitLine& leaf, const CRect& rc);
    bool Activate(CBaseUnitWnd& unit);

    CSplitLine* m_pStart; // null when it has died
    CNodeTable m_table;
    std::vector<NodeSizes> m_arrSizes;
    std::vector<Waiting> m_arrWaiting;
    std::vector<const CSplitLine*> m_arrDead;
    std::uint64_t m_nEpoch = 0; // of the table
    unsigned m_nTable = 0;      // counts tables
    unsigned long m_nHookCalls = 0;
    std::uint64_t m_nPass = 0;
    CLayoutPass* m_pOuter; // layouts nest when a hook starts one
};

} // namespace splitframe
