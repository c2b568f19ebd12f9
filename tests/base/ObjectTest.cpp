// Runtime classes, exceptions, diagnostics.
#include "platform/base/Object.h"
#include "platform/base/Diagnostics.h"
#include "platform/base/Exception.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

class CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)
};

class CCircle : public CShape
{
    DECLARE_DYNCREATE(CCircle)

public:
    int m_nRadius = 3;
};

class CFaulty : public CShape
{
    DECLARE_DYNCREATE(CFaulty)

public:
    CFaulty() { AfxThrowInvalidArgException(); }
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
IMPLEMENT_DYNCREATE(CFaulty, CShape)

TEST(Object, KnowsItsClass)
{
    const CCircle circle;
    EXPECT_EQ(circle.GetRuntimeClass(), RUNTIME_CLASS(CCircle));
    EXPECT_EQ(CCircle::GetThisClass(), RUNTIME_CLASS(CCircle));
    for (const CRuntimeClass* pClass :
         {RUNTIME_CLASS(CCircle), RUNTIME_CLASS(CShape), RUNTIME_CLASS(CObject)})
        EXPECT_TRUE(circle.IsKindOf(pClass));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CFaulty)));
    EXPECT_FALSE(circle.IsKindOf(nullptr));
    EXPECT_FALSE(RUNTIME_CLASS(CShape)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
    const CObject* pObject = &circle;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CCircle, pObject), &circle);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CFaulty, pObject), nullptr);
    EXPECT_EQ(DynamicDownCast<CCircle>(nullptr), nullptr);
}

TEST(Object, IsMadeByClassAndName)
{
    const std::unique_ptr<CObject> pByClass(RUNTIME_CLASS(CCircle)->CreateObject());
    ASSERT_NE(pByClass, nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CCircle, pByClass.get())->m_nRadius, 3);
    const std::unique_ptr<CObject> pByName(CRuntimeClass::CreateObject(L"CCircle"));
    ASSERT_NE(pByName, nullptr);
    EXPECT_TRUE(pByName->IsKindOf(RUNTIME_CLASS(CCircle)));
    EXPECT_EQ(RUNTIME_CLASS(CShape)->CreateObject(), nullptr); // abstract to the outside
    EXPECT_EQ(CRuntimeClass::CreateObject("CMissing"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CShape"), RUNTIME_CLASS(CShape));
    EXPECT_EQ(CRuntimeClass::FromName("cshape"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_THROW(CRuntimeClass::CreateObject("CFaulty"), CInvalidArgException*);
}

TEST(Exception, TellsWhatHappened)
{
    try {
        AfxThrowFileException(CFileException::OsErrorToException(ENOENT), ENOENT, L"a.xml");
    } catch (CException* pException) {
        EXPECT_TRUE(pException->GetErrorMessage() == L"a.xml: No such file");
        EXPECT_TRUE(pException->IsKindOf(RUNTIME_CLASS(CFileException)));
        pException->Delete();
    }
    EXPECT_THROW(AfxThrowMemoryException(), CMemoryException*);
}

TEST(Diagnostics, GoToTheHookOnly)
{
    Diagnostic fault;
    fault.strMessage = L"fault";
    ReportDiagnostic(fault); // nobody listens
    std::vector<CString> arrTold;
    const DiagnosticsHook before = SetDiagnosticsHook([&](const Diagnostic& told) {
        arrTold.push_back(told.strMessage);
        EXPECT_EQ(told.nPosition, -1);
        ReportDiagnostic(told); // not told again
        if (arrTold.size() == 2)
            throw std::runtime_error("a listener fails");
        SetDiagnosticsHook({}); // nor does it hurt to go away while being called
    });
    ReportDiagnostic(fault);
    ReportDiagnostic(fault);
    EXPECT_EQ(arrTold.size(), 1U);
    SetDiagnosticsHook([](const Diagnostic&) { AfxThrowInvalidArgException(); });
    ReportDiagnostic(fault);
    SetDiagnosticsHook(before);
}

} // namespace
