// Where the attributes of one tag stand, as far as they have been read, so that reading all attributes of a
// tag scans it once. Knows text units only. Only plain attributes (name="value" or name='value') are noted;
// from the first one on that is written in another way, and behind as many as there is room for, the tag has
// to be scanned token by token.
#pragma once

#include <cstdint>

namespace splitframe::markup {

class AttribNotes
{
public:
    /// Turns to the tag that starts at pTag.
    /// @param pEnd  the text's end
    void Enter(const wchar_t* pTag, const wchar_t* pEnd)
    {
        if (pTag != m_pTag)
            Begin(pTag, pEnd);
    }

    /// Finds the first attribute of the tag that matches a name. When it is found, Pass has to be told where
    /// its value ends before the next search.
    /// @return where the value starts; its opening quote stands before it, but it may not be closed. Null: it
    /// is not there if IsMissing says so; else the tag has to be scanned
    const wchar_t* Find(const wchar_t* pEnd, const wchar_t* pszName);
    /// The same, where it is the next attribute, as it is when a tag is read from front to back.
    /// @return null: then Find has to answer
    const wchar_t* FindNext(const wchar_t* pszName);
    /// Whether a name that was not found is certainly not there.
    bool IsMissing(const wchar_t* pszName) const;

    /// @param pValueEnd  behind the closing quote of the value that was found, or the end of the text
    void Pass(const wchar_t* pValueEnd)
    {
        if (m_pScan < pValueEnd)
            m_pScan = pValueEnd;
    }
    /// The text has changed.
    void Forget() { m_pTag = nullptr; }

private:
    static constexpr int MOST = 32;

    // What stands behind the notes.
    enum class Behind
    {
        Attribute, // perhaps
        TagEnd,
        Other // what can not be noted
    };

    void Begin(const wchar_t* pTag, const wchar_t* pEnd);
    const wchar_t* FindNote(const wchar_t* pEnd, const wchar_t* pszName) const;
    const wchar_t* FindBehind(const wchar_t* pEnd, const wchar_t* pszName);
    const wchar_t* Note(const wchar_t* pName, const wchar_t* pNameEnd);
    const wchar_t* Stop(Behind behind, const wchar_t* pEnd);
    static unsigned KindOf(const wchar_t* pName, const wchar_t* pNameEnd);

    const wchar_t* m_pTag = nullptr; // null: no notes
    const wchar_t* m_pScan =
        nullptr;                // behind the last value passed; the text's end when no more is to be noted
    std::uint64_t m_nKinds = 0; // one bit for the kind of each name noted
    Behind m_behind = Behind::Other;
    int m_nNotes = 0;
    const wchar_t* m_arrName[MOST];
};

} // namespace splitframe::markup
