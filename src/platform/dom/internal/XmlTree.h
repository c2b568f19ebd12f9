// A parsed XML document, and what may be asked of it. The one place that knows the XML library. Text goes in
// and comes out as UTF-8.
#pragma once

#include <pugixml.hpp>

#include <memory>
#include <string>

namespace splitframe {

/// A well-formed document; it does not change once it is made.
class XmlTree
{
public:
    XmlTree() = default;
    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    /// @param text  UTF-8 without a byte-order mark, taken over
    /// @return the document, or null when the text is not well-formed
    /// @throw std::bad_alloc
    static std::shared_ptr<const XmlTree> Parse(std::string&& text);

    /// The node above the root element; of an empty tree, too.
    pugi::xml_node Top() const { return m_document; }

private:
    std::string m_text; // the nodes' texts stand in it
    pugi::xml_document m_document;
};

/// The text of a node and of all that is below it, in document order.
std::string TextOf(const pugi::xpath_node& node);

} // namespace splitframe
