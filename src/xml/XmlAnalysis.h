// CXmlAnalysis: reading XML by XPath queries, for host classes that derive from it. Knows the XML DOM service
// by its interfaces. Nothing in the library uses it.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/dom/XmlDom.h"

/// One document of the XML DOM service. Failed statuses are thrown as `long`, negative as they are; that the
/// service could not read a file or found it not well-formed is no failed status: then the document is empty
/// and queries select nothing. Made, used and destroyed on one thread.
///
///     class Prices : public CXmlAnalysis
///     {
///     public:
///         double Of(const wchar_t* pszQuery)
///         {
///             double dPrice = 0.0;
///             GetElementDouble(m_pDomDoc, pszQuery, dPrice);
///             return dPrice;
///         }
///     };
///     Prices prices;
///     prices.Load(L"prices.xml");
///     prices.Of(L"/prices/item[@name='tea']");
class SPLITFRAME_API CXmlAnalysis : public CObject
{
public:
    /// Makes an empty document. @throw long when the service is not there
    CXmlAnalysis();
    CXmlAnalysis(const CXmlAnalysis&) = delete;
    CXmlAnalysis& operator=(const CXmlAnalysis&) = delete;
    ~CXmlAnalysis() override;

    /// Loads a file into the document. Its text may be in any encoding that a byte-order mark or its
    /// declaration names. Null: no file. @throw long, CMemoryException
    void Load(const wchar_t* pszFileName);
    /// Loads text, whatever encoding its declaration names. Null: no text.
    void LoadXml(const wchar_t* pszXml);

protected:
    // The helpers read the first node that a query selects, seen from a node, which may be the document. An
    // unparsable query, and null for node or query, are failed statuses.

    /// The text of the selected node and of all below it; empty when none is selected. What fails is told in
    /// a message box, and strText stays as it was. Nothing is ever thrown.
    static void GetElementText(IXMLDOMNode* pNode, const wchar_t* pszQuery, CString& strText);
    /// That text as a number, by the rules of numbers in layout files; 0 when there is none or it failed.
    static void GetElementInt32(IXMLDOMNode* pNode, const wchar_t* pszQuery, int& nValue);
    static void GetElementDouble(IXMLDOMNode* pNode, const wchar_t* pszQuery, double& dValue);
    /// The text of an attribute of the selected node; of the node itself for an empty query.
    /// @return 0 when it is there; 1 when the query selects nothing, the selected node can have no attributes
    /// or has none of that name; a failed status. Unless it is 0, strText stays as it was.
    static long GetElementAttribute(IXMLDOMNode* pNode, const wchar_t* pszQuery, const wchar_t* pszName,
                                    CString& strText);

    IXMLDOMDocument* m_pDomDoc = nullptr; // owned: one reference
};
