// Markup read and written: a list of panes is built, saved, loaded again and changed.
#include "platform/base/Exception.h"
#include "xml/Markup.h"

#include <cstdio>

int main(int argc, char** argv)
{
    const CString strFile(argc > 1 ? argv[1] : "panes.xml");

    CMarkup markup;
    markup.AddElem(L"PANES");
    markup.AddChildElem(L"PANE", L"Trades & orders");
    markup.SetChildAttrib(L"WIDTH", L"320");
    markup.AddChildElem(L"PANE", L"Chart");
    markup.SetChildAttrib(L"WIDTH", L"640");
    try {
        markup.SaveWithMark(strFile);
    } catch (CFileException* pException) {
        std::fprintf(stderr, "%s\n", pException->GetErrorMessage().ToUtf8().c_str());
        pException->Delete();
        return 1;
    }

    CMarkup loaded;
    if (loaded.Load(strFile) == 0) {
        std::fprintf(stderr, "%s\n", loaded.GetFailureText().ToUtf8().c_str());
        return 1;
    }
    while (loaded.FindChildElem(L"PANE")) {
        std::printf("%s: %s\n", loaded.GetChildData().ToUtf8().c_str(),
                    loaded.GetChildAttrib(L"WIDTH").ToUtf8().c_str());
        loaded.SetChildAttrib(L"WIDTH", L"480");
    }
    std::printf("%s", loaded.GetDoc().ToUtf8().c_str());
    return 0;
}
