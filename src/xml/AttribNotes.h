// Where the attributes of one tag stand, as far as they have been read, so that reading all attributes of a
// tag scans it once. Knows text units only. Only plain attributes (name="value") are noted; from the first
// one that is written in another way on, the tag has to be scanned token by token.
#pragma once

#include <cstdint>

namespace splitframe::markup {

class AttribNotes
{
public:
    struct Value
    {
        int nStart;
        int nEnd; // the closing quote
    };
    enum class Answer
    {
        Found,
        None,
        Unknown
    };

    /// Finds the first attribute of a tag that matches a name.
    /// @param nTag  the tag's '<'
    /// @param nLength  length of the text
    /// @param pszName  starts with a character up to FFFF
    Answer Find(const wchar_t* pszText, int nTag, int nLength, const wchar_t* pszName, Value& value)
    {
        if (nTag != m_nTag || pszText != m_pszText)
            Begin(pszText, nTag, nLength);
        // The names passed so far, where one starts alike, then the rest of the tag.
        if ((m_nFirstUnits >> (*pszName & 63) & 1) != 0 && FindNote(pszName, value))
            return Answer::Found;
        return m_answerBehind == Answer::Found ? FindBehind(nLength, pszName, value) : m_answerBehind;
    }
    /// The text has changed.
    void Forget() { m_pszText = nullptr; }

private:
    static constexpr int MOST = 16;

    struct Note
    {
        int nName;
        int nNameLength;
        Value value;
    };

    bool FindNote(const wchar_t* pszName, Value& value) const;
    void Begin(const wchar_t* pszText, int nTag, int nLength);
    Answer FindBehind(int nLength, const wchar_t* pszName, Value& value);

    const wchar_t* m_pszText = nullptr; // null: no notes
    int m_nTag = 0;
    int m_nScan = 0; // behind the last attribute noted
    int m_nNotes = 0;
    // What stands behind the notes: Found: it has to be looked at; None: the tag's end; Unknown: no plain
    // attribute.
    Answer m_answerBehind = Answer::Unknown;
    std::uint64_t m_nFirstUnits = 0; // one bit for the first unit of each name noted, by its lowest six bits
    Note m_arrNote[MOST];
};

} // namespace splitframe::markup
