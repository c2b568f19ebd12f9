// The XML DOM service: a document that is loaded from a file or from text, and nodes of it picked by
// XPath 1.0 queries. Reading only.
//
// Nothing but the file that is asked for is ever opened: no network, no other file, no external entity. The
// entities that a document declares are not expanded, they stay in the text as they are written ("&name;");
// the five predefined ones and numbers are. White space that stands alone between two tags is dropped.
//
// A document is well-formed with one root element and no text beside it; anything else is not loaded and
// leaves the document empty. Of an attribute that an element has twice the first one is found: to look for
// such would take as long as all of the parsing. Nodes stay what they are when their document is loaded anew
// or released.
#pragma once

#include "platform/dom/Component.h"

class IXMLDOMNamedNodeMap;

/// An element, an attribute, a text, or a document.
class IXMLDOMNode : public IUnknown
{
public:
    /// The first node, in document order, that a query selects, seen from this node.
    /// @param bstrQuery  XPath 1.0; names are compared as they are written, prefix included
    /// @return S_FALSE when nothing is selected; a failed status when it is no query for nodes
    virtual HRESULT selectSingleNode(BSTR bstrQuery, IXMLDOMNode** ppNode) = 0;
    /// The text of the node and of all that is below it, in document order.
    virtual HRESULT get_text(BSTR* pbstrText) = 0;
    /// The attributes of an element. @return S_FALSE for any other node
    virtual HRESULT get_attributes(IXMLDOMNamedNodeMap** ppMap) = 0;

protected:
    ~IXMLDOMNode() = default;
};

/// The attributes of one element.
class IXMLDOMNamedNodeMap : public IUnknown
{
public:
    /// The attribute of that name, compared as it is written. @return S_FALSE when there is none
    virtual HRESULT getNamedItem(BSTR bstrName, IXMLDOMNode** ppNode) = 0;

protected:
    ~IXMLDOMNamedNodeMap() = default;
};

/// A document, which is a node, too: the one above its root element.
class IXMLDOMDocument : public IXMLDOMNode
{
public:
    /// Loads a file. Its encoding is that of its byte-order mark, else the one that its declaration names,
    /// else UTF-8.
    /// @param source         the path, as VT_BSTR
    /// @param pbSuccessful   set to VARIANT_FALSE when the file could not be read or is not well-formed; may
    /// be null
    /// @return S_FALSE in that case; a failed status only for a source of another kind or when memory runs
    /// out
    virtual HRESULT load(VARIANT source, VARIANT_BOOL* pbSuccessful) = 0;
    /// Loads text, whatever encoding its declaration names.
    virtual HRESULT loadXML(BSTR bstrXml, VARIANT_BOOL* pbSuccessful) = 0;

protected:
    ~IXMLDOMDocument() = default;
};

inline constexpr GUID CLSID_DOMDocument = {
    0xF6D90F11, 0x9C73, 0x11D3, {0xB3, 0x2E, 0x00, 0xC0, 0x4F, 0x99, 0x0B, 0xB4}};
inline constexpr GUID IID_IXMLDOMDocument = {
    0x2933BF81, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
