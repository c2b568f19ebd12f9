// Closing frames, the main frame and documents: order, refusals, interference, and what is deleted when.
#include "docview/Host.h"

#include "platform/base/Exception.h"

namespace {

using host::Child;
using host::Document;
using host::MdiSession;
using host::View;

class Closing : public MdiSession
{
protected:
    Closing()
    {
        m_recorder.mutedEvents = {"CalcWindowRect", "ActivateView", "Activate", "Create", "InitialUpdate"};
    }

    void SendToAll(UINT nMessage)
    {
        for (CMDIChildWnd* pFrame : m_pMain->GetChildFrames())
            pFrame->SendMessage(nMessage);
    }

    void MakeMainAgain()
    {
        if (m_app.m_pMainWnd)
            return;
        m_pMain = new host::MdiMain;
        m_app.m_pMainWnd = m_pMain;
        ASSERT_TRUE(m_pMain->LoadFrame(1));
        m_pMain->ActivateFrame(SW_SHOW);
    }
};

TEST_F(Closing, EventsOfClosingTheActiveChild)
{
    Open("A");
    Child* pB = Open("B");
    m_recorder.Take();
    pB->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_recorder.Take(), "B.Close; B.CanCloseFrame; B.CloseDocument; B.PreCloseFrame; "
                                 "B.MDIActivate 0; A.MDIActivate 1; A.FrameFocus; A.ViewFocus; "
                                 "B.Destroy; B.ViewDestroy; B.ViewDeleted");
    EXPECT_EQ(Stack(), "A");
    EXPECT_EQ(m_recorder.nFrames, 1);
    EXPECT_EQ(m_recorder.nDocuments, 1);
    EXPECT_EQ(m_pTemplate->GetDocumentCount(), 1);
}

TEST_F(Closing, ACoveredChildClosesWithoutASwitch)
{
    Child* pA = Open("A");
    Open("B");
    m_recorder.Take();
    pA->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_recorder.Take(), "A.Close; A.CanCloseFrame; A.CloseDocument; A.PreCloseFrame; A.Destroy; "
                                 "A.ViewDestroy; A.ViewDeleted");
    EXPECT_EQ(Stack(), "B");
}

TEST_F(Closing, TheLastChildLeavesTheMainFrameActive)
{
    Child* pA = Open("A");
    m_recorder.Take();
    pA->DestroyWindow();
    EXPECT_EQ(m_recorder.Take(), "A.MDIActivate 0; A.Destroy; A.ViewDestroy; A.ViewDeleted; A.CloseDocument");
    EXPECT_EQ(Stack(), "main");
    EXPECT_EQ(m_recorder.nDocuments, 0);
}

TEST_F(Closing, TheNextFrameIsTheOneThatWasInFrontBefore)
{
    Child* pA = Open("A");
    Open("B");
    Child* pC = Open("C");
    m_pMain->MDIActivate(pA);
    m_pMain->MDIActivate(pC);
    pC->SendMessage(WM_CLOSE);
    EXPECT_EQ(Stack(), "AB");
}

TEST_F(Closing, TheMainFrameClosesItsChildrenFirstAndOneRefusalKeepsIt)
{
    Open("A");
    auto* pDocument = static_cast<Document*>(Open("B")->GetActiveDocument());
    Open("C");
    pDocument->m_bMayClose = FALSE;
    m_recorder.mutedEvents.insert({"MDIActivate", "FrameFocus", "ViewFocus", "ViewDestroy", "ViewDeleted",
                                   "CloseDocument", "PreCloseFrame"});
    m_recorder.Take();
    CloseMain();
    EXPECT_EQ(m_recorder.Take(), "main.Close; A.Close; A.CanCloseFrame; A.Destroy; B.Close; B.CanCloseFrame");
    EXPECT_EQ(Stack(), "CB");
    pDocument->m_bMayClose = TRUE;
    CloseMain();
    EXPECT_EQ(m_recorder.Take(), "main.Close; B.Close; B.CanCloseFrame; B.Destroy; C.Close; C.CanCloseFrame; "
                                 "C.Destroy; main.Destroy");
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
    EXPECT_EQ(m_recorder.nMains, 0);
}

TEST_F(Closing, CtrlF4ClosesTheActiveChildOnceAPress)
{
    auto& screen = *splitframe::CurrentHeadless();
    for (const char* label : {"A", "B", "C"})
        Open(label);
    screen.PressKey(VK_CONTROL);
    screen.PressKey(VK_F4);
    screen.PressKey(VK_F4, true); // the key repeats
    splitframe::DrainMessages();
    EXPECT_EQ(Stack(), "BA");
    m_pMain->EnableWindow(FALSE); // something modal is open
    screen.ReleaseKey(VK_F4);
    screen.PressKey(VK_F4);
    screen.PressKey(VK_TAB);
    splitframe::DrainMessages();
    EXPECT_EQ(Stack(), "BA");
    m_pMain->EnableWindow(TRUE);
    for (int n = 0; n < 3; ++n) {
        screen.ReleaseKey(VK_F4);
        screen.PressKey(VK_F4);
    }
    splitframe::DrainMessages();
    EXPECT_EQ(Stack(), "main");
    screen.ReleaseKey(VK_CONTROL);
    splitframe::DrainMessages();
}

TEST_F(Closing, DestroyingTheMainFrameSwitchesNothing)
{
    Open("A");
    Open("B");
    m_recorder.Take();
    m_pMain->DestroyWindow();
    const std::string strEvents = m_recorder.Take();
    EXPECT_EQ(strEvents.find("MDIActivate 1"), std::string::npos) << strEvents;
    EXPECT_LT(strEvents.find("main.Destroy"), strEvents.find("A.Destroy")) << strEvents;
    EXPECT_LT(strEvents.find("A.Destroy"), strEvents.find("A.ViewDestroy")) << strEvents;
    EXPECT_EQ(m_recorder.nFrames + m_recorder.nViews + m_recorder.nDocuments + m_recorder.nMains, 0);
}

TEST_F(Closing, AFrameThatSkipsTheBasesDestroyHandlerStillEndsWhole)
{
    Child* pA = Open("A");
    Open("B");
    m_pMain->MDIActivate(pA);
    pA->m_bCallBaseOnDestroy = false;
    pA->DestroyWindow();
    EXPECT_EQ(Stack(), "B");
    EXPECT_EQ(m_recorder.nFrames, 1);
    EXPECT_EQ(m_recorder.nDocuments, 1);
}

TEST_F(Closing, WithinACallObjectsOutliveTheirWindows)
{
    Child* pA = Open("A");
    CDocument* pDocument = pA->GetActiveDocument();
    CView* pView = pA->GetActiveView();
    {
        const CCallScope scope;
        pA->SendMessage(WM_CLOSE);
        EXPECT_EQ(pA->GetSafeHwnd(), nullptr);
        EXPECT_EQ(pA->GetActiveView(), pView);
        EXPECT_EQ(pA->GetActiveDocument(), pDocument);
        EXPECT_EQ(pDocument->GetTitle(), L"A");
    }
    EXPECT_EQ(m_recorder.nFrames + m_recorder.nViews + m_recorder.nDocuments, 0);
}

TEST_F(Closing, HooksMayInterfereAtAnyStep)
{
    const char* const events[] = {"A.Close",         "A.CanCloseFrame", "A.CloseDocument", "A.PreCloseFrame",
                                  "A.MDIActivate 0", "B.MDIActivate 1", "B.FrameFocus",    "A.Destroy",
                                  "A.ViewDestroy",   "A.ViewDeleted"};
    const std::function<void()> deeds[] = {
        [this] { SendToAll(WM_CLOSE); },
        [this] {
            while (!m_pMain->GetChildFrames().empty() && m_pMain->GetChildFrames().front()->DestroyWindow()) {
            }
        },
        [this] { CloseMain(); },
        [this] { m_pMain->DestroyWindow(); },
        [this] {
            m_pMain->MDIActivate(m_pMain->GetChildFrames().empty() ? nullptr
                                                                   : m_pMain->GetChildFrames().front());
        },
        [this] { Open("C"); },
    };
    for (const char* pszEvent : events) {
        for (const auto& deed : deeds) {
            SCOPED_TRACE(testing::Message() << pszEvent << " deed " << &deed - deeds);
            MakeMainAgain();
            Open("B");
            Child* pA = Open("A");
            m_recorder.hooks[pszEvent] = [&] {
                if (m_app.m_pMainWnd)
                    deed();
            };
            pA->SendMessage(WM_CLOSE);
            m_recorder.hooks.clear();
            if (m_app.m_pMainWnd)
                m_pMain->DestroyWindow();
            splitframe::DrainMessages();
            EXPECT_EQ(m_recorder.nFrames + m_recorder.nViews + m_recorder.nDocuments + m_recorder.nMains, 0);
            ASSERT_EQ(m_recorder.arrDiagnostic, std::vector<std::string>());
        }
    }
}

TEST_F(Closing, ExceptionsKeepTheFrameOpenAndItClosesLater)
{
    for (const char* pszEvent : {"A.CanCloseFrame", "A.PreCloseFrame", "A.Close"}) {
        SCOPED_TRACE(pszEvent);
        Child* pA = Open("A");
        m_recorder.hooks[pszEvent] = [] { AfxThrowInvalidArgException(); };
        pA->SendMessage(WM_CLOSE);
        EXPECT_EQ(Stack(), "A");
        EXPECT_EQ(m_recorder.arrDiagnostic.size(), 1U);
        m_recorder.arrDiagnostic.clear();
        pA->SendMessage(WM_CLOSE);
        EXPECT_EQ(Stack(), "main");
    }
}

TEST_F(Closing, ADestroyedViewLeavesTheFrameWithoutDocument)
{
    Child* pA = Open("A");
    ::DestroyWindow(pA->GetActiveView()->GetSafeHwnd());
    EXPECT_EQ(m_recorder.nViews, 0);
    // The last view's end closes the document; there is nothing left to show in the frame.
    EXPECT_EQ(m_recorder.nDocuments, 0);
    EXPECT_EQ(m_pMain->GetActiveDocument(), nullptr);
    m_pMain->RecalcLayout(TRUE);
    pA->SendMessage(WM_CLOSE);
    EXPECT_EQ(Stack(), "main");
}

// --- who owns what

TEST_F(Closing, ADocumentShownTwiceEndsWithItsLastFrame)
{
    Child* pA = Open("A");
    CDocument* pDocument = pA->GetActiveDocument();
    CFrameWnd* pOther = m_pTemplate->CreateNewFrame(pDocument, pA);
    m_pTemplate->InitialUpdateFrame(pOther, pDocument);
    static_cast<Document*>(pDocument)->m_bMayClose = FALSE;
    EXPECT_EQ(pDocument->GetViewCount(), 2);
    pA->SendMessage(WM_CLOSE); // not the last: no question
    EXPECT_EQ(m_recorder.nFrames, 1);
    EXPECT_EQ(m_recorder.nDocuments, 1);
    pOther->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_recorder.nFrames, 1);
    static_cast<Document*>(pDocument)->m_bMayClose = TRUE;
    pDocument->OnCloseDocument();
    EXPECT_EQ(m_recorder.nFrames, 0);
    EXPECT_EQ(m_recorder.nDocuments, 0);
}

TEST_F(Closing, ADocumentThatItsHostKeepsCanBeShownAgain)
{
    host::Rec().strNextLabel = "kept";
    auto pDocument = std::make_unique<Document>();
    pDocument->m_bAutoDelete = FALSE;
    for (int n = 0; n < 2; ++n) {
        CFrameWnd* pFrame = m_pTemplate->CreateNewFrame(pDocument.get(), nullptr);
        m_pTemplate->InitialUpdateFrame(pFrame, pDocument.get());
        EXPECT_EQ(pDocument->GetViewCount(), 1);
        pFrame->SendMessage(WM_CLOSE);
        EXPECT_EQ(pDocument->GetViewCount(), 0);
    }
}

TEST_F(Closing, ADocumentDeletedByItsHostLeavesTheViewWithoutOne)
{
    Child* pA = Open("A");
    delete pA->GetActiveDocument();
    EXPECT_EQ(pA->GetActiveDocument(), nullptr);
    EXPECT_EQ(m_pTemplate->GetDocumentCount(), 0);
    pA->SendMessage(WM_CLOSE);
    EXPECT_EQ(Stack(), "main");
}

TEST_F(Closing, MainFramesAreHeldInManyWays)
{
    struct Holder
    {
        host::MdiMain frame;
    };
    const auto use = [](host::MdiMain& frame, bool bCloseFirst) {
        EXPECT_TRUE(frame.Create(nullptr, L"held"));
        frame.ShowWindow(SW_SHOW);
        if (bCloseFirst)
            frame.SendMessage(WM_CLOSE);
    };
    for (const bool bCloseFirst : {false, true}) {
        host::MdiMain onStack;
        use(onStack, bCloseFirst);
        const auto pHolder = std::make_unique<Holder>();
        use(pHolder->frame, bCloseFirst);
        EXPECT_FALSE(onStack.m_bAutoDelete || pHolder->frame.m_bAutoDelete);
    }
    auto* pOwn = new host::MdiMain;
    EXPECT_TRUE(pOwn->m_bAutoDelete);
    use(*pOwn, true);
    auto* pDeletedByHost = new host::MdiMain;
    use(*pDeletedByHost, false);
    delete pDeletedByHost;
    EXPECT_EQ(m_recorder.nMains, 1);
    EXPECT_EQ(m_app.m_pMainWnd, m_pMain);
}

// --- what can not be made

TEST_F(Closing, UnfitClassesMakeNothingAndLeaveNothing)
{
    struct Case
    {
        const char* what;
        CRuntimeClass* pDoc;
        CRuntimeClass* pFrame;
        CRuntimeClass* pView;
        bool bDocument;
        bool bFrame;
    };
    CRuntimeClass* const pDoc = RUNTIME_CLASS(Document);
    CRuntimeClass* const pFrame = RUNTIME_CLASS(Child);
    CRuntimeClass* const pView = RUNTIME_CLASS(View);
    const Case cases[] = {
        {"all fit", pDoc, pFrame, pView, true, true},
        {"no document class", nullptr, pFrame, pView, false, true},
        {"a document class that makes views", pView, pFrame, pView, false, true},
        {"no frame class", pDoc, nullptr, pView, true, false},
        {"a frame class that makes documents", pDoc, pDoc, pView, true, false},
        {"no view class", pDoc, pFrame, nullptr, true, true},
        {"a view class that makes documents", pDoc, pFrame, pDoc, true, false},
        {"classes that make nothing", RUNTIME_CLASS(CDocument), RUNTIME_CLASS(CWnd), pView, false, false},
    };
    m_recorder.strNextLabel = "X";
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        CMultiDocTemplate model(2, c.pDoc, c.pFrame, c.pView);
        CDocument* pDocument = model.CreateNewDocument();
        EXPECT_EQ(pDocument != nullptr, c.bDocument);
        CFrameWnd* pMade = model.CreateNewFrame(pDocument, nullptr);
        EXPECT_EQ(pMade != nullptr, c.bFrame);
        model.InitialUpdateFrame(pMade, pDocument);
        if (pMade)
            pMade->DestroyWindow();
        EXPECT_EQ(m_recorder.nFrames + m_recorder.nViews, 0);
        EXPECT_EQ(Stack(), "main");
    }
    EXPECT_EQ(m_recorder.nDocuments, 0);
}

TEST_F(Closing, WithoutMainFrameNoChildFrameIsMade)
{
    m_pMain->DestroyWindow();
    EXPECT_EQ(Make("A"), nullptr);
    EXPECT_EQ(m_recorder.nFrames, 0);
    delete m_pTemplate->GetDocument(0);
}

} // namespace
