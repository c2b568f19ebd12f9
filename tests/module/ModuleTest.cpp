// Runtime classes of libraries that come and go while the process runs.
#include "platform/base/Module.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <memory>

namespace {

// A library that is loaded for as long as this object lives.
struct Library
{
    explicit Library(const char* pszPath) : pHandle(dlopen(pszPath, RTLD_NOW | RTLD_LOCAL)) {}
    ~Library()
    {
        if (pHandle)
            dlclose(pHandle);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    void* pHandle;
};

bool IsLoaded(const char* pszPath)
{
    void* pHandle = dlopen(pszPath, RTLD_NOW | RTLD_NOLOAD);
    if (pHandle)
        dlclose(pHandle);
    return pHandle != nullptr;
}

bool CanMake(const char* pszClass)
{
    return std::unique_ptr<CObject>(CRuntimeClass::CreateObject(pszClass)) != nullptr;
}

TEST(Module, LibraryBringsItsClassesAndTakesThemAway)
{
    for (int nTimes = 0; nTimes < 3; ++nTimes) {
        EXPECT_EQ(CRuntimeClass::FromName("CBaseUnitWnd"), nullptr);
        {
            const Library library(SPLITFRAME_PATH);
            ASSERT_NE(library.pHandle, nullptr) << dlerror();
            for (const char* pszClass : {"CBaseFrameDoc", "CBaseFrameView", "CBaseFrameChildWnd",
                                         "CBaseUnitWnd", "CBaseFrameHelper"}) {
                SCOPED_TRACE(pszClass);
                ASSERT_NE(CRuntimeClass::FromName(pszClass), nullptr);
                EXPECT_NE(CRuntimeClass::FromName(pszClass)->m_pfnCreateObject, nullptr);
            }
        }
        EXPECT_EQ(CRuntimeClass::FromName("CBaseUnitWnd"), nullptr);
        EXPECT_FALSE(IsLoaded(SPLITFRAME_PATH));
        EXPECT_NE(CRuntimeClass::FromName("CObject"), nullptr);
    }
}

TEST(Module, LibraryWithoutRecordIsFoundAllTheSame)
{
    {
        const Library library(PLUGIN_PATH);
        ASSERT_NE(library.pHandle, nullptr) << dlerror();
        EXPECT_TRUE(CanMake("CPluginThing"));
    }
    EXPECT_EQ(CRuntimeClass::FromName("CPluginThing"), nullptr);
    EXPECT_FALSE(IsLoaded(PLUGIN_PATH));
}

TEST(Module, ClassesBelongToTheModuleThatIsSetUp)
{
    {
        const Library library(PLUGIN_PATH);
        ASSERT_NE(library.pHandle, nullptr) << dlerror();
        const auto getModule = reinterpret_cast<void* (*)()>(dlsym(library.pHandle, "GetPluginModule"));
        ASSERT_NE(getModule, nullptr);
        AFX_EXTENSION_MODULE& module = *static_cast<AFX_EXTENSION_MODULE*>(getModule());
        AfxTermExtensionModule(module); // not set up yet: harmless

        ASSERT_TRUE(AfxInitExtensionModule(module, &module));
        EXPECT_FALSE(AfxInitExtensionModule(module, &module));
        EXPECT_FALSE(CanMake("CPluginThing")); // nothing stands for the module yet
        new CDynLinkLibrary(module);
        auto* pSecond = new CDynLinkLibrary(module);
        EXPECT_TRUE(CanMake("CPluginThing"));
        delete pSecond;
        EXPECT_TRUE(CanMake("CPluginThing"));
        EXPECT_NE(CRuntimeClass::FromName("CPluginBase"), nullptr);
        EXPECT_NE(CRuntimeClass::FromName("CDynLinkLibrary"), nullptr); // of the platform, not of the module
        if (::testing::Test::HasFailure())
            return;
        AfxTermExtensionModule(module);
        EXPECT_FALSE(CanMake("CPluginThing"));
        EXPECT_EQ(module.bInitialized, FALSE);
        ASSERT_TRUE(
            AfxInitExtensionModule(module, &module)); // set up again, then unloaded with its record in place
        new CDynLinkLibrary(module);
        AfxTermExtensionModule(module);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CPluginBase"), nullptr);
}

} // namespace
