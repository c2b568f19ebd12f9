// A monkey at the keyboard, the mouse and the host's code: does random operations on a host with several
// frames, from outside and from within every hook of its units and helpers, and checks after each that all
// that must hold does. The same seed does the same again: all chance comes from one generator, and the clock
// stands still but for the monkey's own doing.
#pragma once

#include "support/FrameHost.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace monkey {

class Monkey
{
public:
    /// @param bTrace  write every operation to the standard error output before it is done
    Monkey(std::uint32_t nSeed, bool bTrace);
    ~Monkey();
    Monkey(const Monkey&) = delete;
    Monkey& operator=(const Monkey&) = delete;

    /// Does one operation, and whatever hooks do meanwhile.
    /// @return what is broken afterwards, or empty
    std::string Step();

    /// A hook of the host runs: every now and then it does something, too.
    void Hook(const CBaseUnitWnd* pUnit);

    long GetDone() const { return m_nDone; } ///< operations so far, those of hooks included
    unsigned Below(unsigned n) { return static_cast<unsigned>(m_random() % n); }

    // What operations work on; null when there is none.
    test::FrameHost& Host() { return m_host; }
    CBaseFrameDoc* AnyDoc();                      ///< of an open frame
    CBaseUnitWnd* AnyUnit();                      ///< of an open frame, its caches, or a global one
    bool IsBusy(const CBaseUnitWnd* pUnit) const; ///< one of its hooks is running
    const wchar_t* AnyName();                     ///< of a frame, style, unit or line, or of nothing
    CPoint AnyPoint();                            ///< on the screen; often on a split line

    /// What the helpers answer when a frame is asked to close.
    bool Refuses() { return Below(8) == 0; }

private:
    void DoSomething();

    test::FrameHost m_host;
    std::mt19937 m_random;
    bool m_bTrace;
    long m_nDone = 0;
    int m_nDepth = 0;
    int m_nLeft = 0; // operations that hooks may still do in this step
    std::vector<const CBaseUnitWnd*> m_arrBusy;
};

/// One kind of operation; the weight says how often it is chosen.
struct Operation
{
    const char* pszName;
    unsigned nWeight;
    void (*pfnDo)(Monkey& monkey);
};

const std::vector<Operation>& Operations();

/// The first broken rule of frames, trees, lists, caches, focus and screen, in words, or empty.
std::string CheckHost(test::FrameHost& host);

/// The frames that the monkey plays with; their classes are known under the GUIDs of LayoutXml.h.
void LoadFrames(test::FrameHost& host);

/// The monkey whose host the units and helpers belong to.
Monkey* Current();

} // namespace monkey
