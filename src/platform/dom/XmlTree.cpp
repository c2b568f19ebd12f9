// Parsing with the cheap checks that the XML library leaves out: one root and nothing but blanks beside it,
// no zeros. Walks go along the nodes' own links: documents may be of any depth.
#include "platform/dom/internal/XmlTree.h"

namespace splitframe {
namespace {

// The next node in document order below top; null behind the last.
pugi::xml_node Next(pugi::xml_node node, const pugi::xml_node& top)
{
    if (const pugi::xml_node child = node.first_child())
        return child;
    while (node != top && !node.next_sibling())
        node = node.parent();
    return node == top ? pugi::xml_node() : node.next_sibling();
}

bool HasOneRoot(const pugi::xml_node& top)
{
    int nRoots = 0;
    for (const pugi::xml_node& node : top.children()) {
        if (node.type() != pugi::node_element)
            return false; // text
        ++nRoots;
    }
    return nRoots == 1;
}

} // namespace

std::shared_ptr<const XmlTree> XmlTree::Parse(std::string&& text)
{
    if (text.find('\0') != std::string::npos)
        return nullptr;
    auto pTree = std::make_shared<XmlTree>();
    pTree->m_text = std::move(text);
    // As a fragment, so that text beside the root is seen instead of skipped.
    const pugi::xml_parse_result result = pTree->m_document.load_buffer_inplace(
        pTree->m_text.data(), pTree->m_text.size(), pugi::parse_default | pugi::parse_fragment,
        pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (!result || !HasOneRoot(pTree->Top()))
        return nullptr;
    return pTree;
}

std::string TextOf(const pugi::xpath_node& node)
{
    if (node.attribute())
        return node.attribute().value();
    const pugi::xml_node top = node.node();
    std::string text;
    for (pugi::xml_node each = top; each; each = Next(each, top)) {
        if (each.type() == pugi::node_pcdata || each.type() == pugi::node_cdata)
            text += each.value();
    }
    return text;
}

} // namespace splitframe
