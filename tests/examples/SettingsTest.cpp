// The settings form: typing, the caret, and what becomes of changes that are not applied.
#include "Commands.h"
#include "Workbench.h"
#include "units/SettingsUnit.h"

#include "platform/docview/MDIChildWnd.h"
#include "platform/window/MessageLoop.h"

class SettingsTest : public WorkbenchTest
{
protected:
    CSettingsUnit& Form() { return Unit<CSettingsUnit>(L"Settings"); }
    const CString& Batch() { return Form().GetDraft().strBatch; }
    /// Opens the form and leaves a change in it that is not applied.
    void Edit(const wchar_t* pszStyle)
    {
        Open(pszStyle);
        Form().SetFocus();
        Click(Form(), Form().GetFieldRect(CSettingsUnit::FIELD_BATCH).CenterPoint());
        Type(L"X");
        ASSERT_TRUE(Form().IsEdited());
    }
    void Answer(int nAnswer)
    {
        Display().SetMessageBoxAnswer([nAnswer](const auto&) { return nAnswer; });
    }
    std::size_t Questions() { return Display().MessageBoxes().size(); }
};

TEST_F(SettingsTest, TheCaretGoesThroughTheText)
{
    Open(L"Setup");
    const CRect rc = Form().GetFieldRect(CSettingsUnit::FIELD_BATCH);
    Click(Form(), {rc.right - 4, rc.CenterPoint().y});
    const struct
    {
        UINT nKey;
        const wchar_t* pszType;
        const wchar_t* pszText;
    } steps[] = {
        {VK_LEFT, L"-", L"041-7"},
        {VK_HOME, L"B", L"B041-7"},
        {VK_DELETE, L"", L"B41-7"},
        {VK_END, L"𝄞", L"B41-7𝄞"},
        {VK_LEFT, L"é", L"B41-7é𝄞"},
        {VK_DELETE, L"", L"B41-7é"},
        {VK_BACK, L"", L"B41-7"},
        {VK_RIGHT, L"8", L"B41-78"},
        {VK_HOME, L"", L"B41-78"},
        {VK_BACK, L"", L"B41-78"},
        {VK_LEFT, L"1", L"1B41-78"},
        {VK_END, L"012345678901234567890", L"1B41-7801234567890123456"}, // no more than 24
    };
    for (const auto& step : steps) {
        Press(step.nKey);
        Type(step.pszType);
        EXPECT_EQ(Batch(), step.pszText);
    }
    Click(Form(), {rc.left + 9, rc.CenterPoint().y});
    Type(L">");
    EXPECT_EQ(Batch().Left(2), L"1B") << "nothing fits any more";
    Press(VK_DELETE);
    EXPECT_EQ(Batch().Left(2), L"B4") << "the caret stands where the click was";
    Press(VK_ESCAPE);
    EXPECT_EQ(Batch(), L"0417");
}

TEST_F(SettingsTest, AFrameWithChangesIsNotClosedWithoutAQuestion)
{
    Edit(L"One trend");
    Answer(IDCANCEL);
    Press(VK_CONTROL, VK_F4);
    EXPECT_EQ(ActiveName(), L"Trends");
    EXPECT_EQ(CWnd::GetFocus(), &Form());
    EXPECT_TRUE(Form().IsEdited());
    Answer(IDYES);
    Command(ID_FILE_CLOSE_FRAME);
    EXPECT_EQ(ActiveName(), L"");
    EXPECT_EQ(m_pApp->GetSettings().strBatch, L"0417X");
    EXPECT_EQ(Questions(), 2U);

    Edit(L"Setup");
    Answer(IDNO);
    Press(VK_CONTROL, VK_F4);
    EXPECT_EQ(ActiveName(), L"");
    EXPECT_EQ(m_pApp->GetSettings().strBatch, L"0417X");
    Open(L"Setup");
    EXPECT_FALSE(Form().IsEdited());
    Press(VK_CONTROL, VK_F4);
    EXPECT_EQ(Questions(), 3U) << "nothing to ask about";
}

TEST_F(SettingsTest, TheWorkbenchIsNotClosedWithoutAQuestion)
{
    Edit(L"Setup");
    Open(L"Process"); // in front of the frame that has the form
    Answer(IDCANCEL);
    Display().RequestClose();
    splitframe::DrainMessages();
    ASSERT_NE(m_pApp->GetMainFrame(), nullptr);
    EXPECT_EQ(ActiveName(), L"Setup") << "the user sees what the question is about";
    EXPECT_EQ(Frame().GetChildFrames().size(), 2U) << "nothing has been closed yet";
    Command(ID_FILE_EXIT);
    ASSERT_NE(m_pApp->GetMainFrame(), nullptr);
    EXPECT_EQ(Questions(), 2U);
    Answer(IDNO);
    Command(ID_FILE_EXIT);
    EXPECT_EQ(m_pApp->GetMainFrame(), nullptr);
    EXPECT_EQ(Questions(), 3U);
}

TEST_F(SettingsTest, NorWhenNoFrameHasTheForm)
{
    Edit(L"One trend");
    Open(L"Four trends");
    EXPECT_EQ(Questions(), 0U) << "the form keeps what is typed";
    Answer(IDCANCEL);
    Command(ID_FILE_EXIT);
    ASSERT_NE(m_pApp->GetMainFrame(), nullptr);
    Press(VK_CONTROL, 'E');
    EXPECT_EQ(ActiveName(), L"Setup");
    EXPECT_EQ(CWnd::GetFocus(), &Form());
    EXPECT_EQ(Batch(), L"0417X");
    Press(VK_RETURN);
    EXPECT_EQ(m_pApp->GetSettings().strBatch, L"0417X");
}

TEST_F(SettingsTest, TemperaturesAreShownInFahrenheitEverywhere)
{
    Open(L"One trend");
    const Instrument& instrument = GetInstrument(0);
    EXPECT_EQ(FormatValueAndUnit(instrument, 20.0), L"20.0 °C");
    const unsigned long nPresents = Display().PresentCount();
    Edit(L"One trend");
    Press(VK_F8);
    EXPECT_EQ(FormatValueAndUnit(instrument, 20.0), L"68.0 °F");
    EXPECT_EQ(FormatValueAndUnit(GetInstrument(3), 7.0), L"7.00 pH");
    EXPECT_GT(Display().PresentCount(), nPresents);
    EXPECT_EQ(Batch(), L"0417X") << "what is half typed stays";
    EXPECT_NE(MenuState(ID_VIEW_FAHRENHEIT) & MF_CHECKED, 0U);
    Press(VK_ESCAPE);
    EXPECT_FALSE(Form().IsEdited());
    Press(VK_F8);
    EXPECT_EQ(FormatValue(instrument, 20.0), L"20.0");
}
