// Where the attributes of one tag stand, as far as they have been read, so that reading all attributes of a
// tag scans it once. Knows text units only. Only plain attributes (name="value") are noted; from the first
// one that is written in another way on, the tag has to be scanned token by token.
#pragma once

#include <cstdint>

namespace splitframe::markup {

class AttribNotes
{
public:
    enum class Answer
    {
        Found,
        None,
        Unknown
    };

    /// Turns to the tag that starts at pTag.
    /// @param pEnd  the text's end
    void Enter(const wchar_t* pTag, const wchar_t* pEnd)
    {
        if (pTag != m_pTag)
            Begin(pTag, pEnd);
    }

    /// Finds the first attribute of the tag that matches a name. When it is found, Pass has to be told where
    /// its value ends before the next search.
    /// @param pszName  starts with a character up to FFFF
    /// @param pValue  out: where the value starts; its opening quote stands before it. It may not be closed
    Answer Find(const wchar_t* pEnd, const wchar_t* pszName, const wchar_t*& pValue);
    /// The same, where it is the next attribute, as it is when a tag is read from front to back.
    /// @return the value, or null: then Find has to answer
    const wchar_t* FindNext(const wchar_t* pszName);

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

    void Begin(const wchar_t* pTag, const wchar_t* pEnd);
    bool MayBeNoted(const wchar_t* pszName) const { return (m_nFirstUnits >> (*pszName & 63) & 1) != 0; }
    const wchar_t* FindNote(const wchar_t* pEnd, const wchar_t* pszName) const;
    Answer FindBehind(const wchar_t* pEnd, const wchar_t* pszName, const wchar_t*& pValue);
    const wchar_t* Note(const wchar_t* pName, const wchar_t* pNameEnd);
    Answer End(Answer answer, const wchar_t* pEnd);

    const wchar_t* m_pTag = nullptr; // null: no notes
    const wchar_t* m_pScan =
        nullptr; // behind the last value passed; the text's end when no more is to be noted
    // One bit for the first unit of each name noted, by its lowest six bits, and always that of the empty
    // name.
    std::uint64_t m_nFirstUnits = 0;
    // What stands behind the notes: Found: it has to be looked at; None: the tag's end; Unknown: no plain
    // attribute.
    Answer m_answerBehind = Answer::Unknown;
    int m_nNotes = 0;
    const wchar_t* m_arrName[MOST];
};

} // namespace splitframe::markup
