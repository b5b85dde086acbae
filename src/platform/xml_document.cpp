#include "platform/xml_document.h"

#include <algorithm>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>
#include <libxml/xmlsave.h>
#include <limits>
#include <new>
#include <utility>

namespace htdrdd {
namespace {

struct Freer {
    void operator()(xmlDoc* document) const noexcept { ::xmlFreeDoc(document); }
    void operator()(xmlBuffer* buffer) const noexcept { ::xmlBufferFree(buffer); }
    void operator()(xmlChar* text) const noexcept { ::xmlFree(text); }
    void operator()(xmlParserCtxt* parser) const noexcept {
        if (parser->myDoc != nullptr) ::xmlFreeDoc(parser->myDoc);
        ::xmlFreeParserCtxt(parser);
    }
};
template <class T>
using Handle = std::unique_ptr<T, Freer>;

constexpr std::size_t kMostUnits = 1'000'000; ///< 10 million bytes are read, and '"' takes 6 of them

/// What the XML library gives no object for is memory that can't be had.
template <class T>
T* Had(T* object) {
    if (object == nullptr) throw std::bad_alloc();
    return object;
}

/// Keeps the XML library from printing on this thread, whose host may use it as well.
class Silence {
public:
    Silence() : handler_(xmlStructuredError), context_(xmlStructuredErrorContext) { // both are macros
        static const bool initialized = (::xmlInitParser(), true);
        static_cast<void>(initialized);
        ::xmlSetStructuredErrorFunc(nullptr, [](void* /*context*/, xmlError* /*error*/) {});
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { ::xmlSetStructuredErrorFunc(context_, handler_); }

private:
    xmlStructuredErrorFunc handler_;
    void* context_;
};

const xmlNode* NodeOf(const void* node) noexcept { return static_cast<const xmlNode*>(node); }

bool IsNamed(const xmlChar* name, const xmlNs* ns, TextView wanted) noexcept {
    if (ns != nullptr) return false;
    const std::string_view units(reinterpret_cast<const char*>(name)); // NOLINT(*-reinterpret-cast)
    return std::equal(units.begin(), units.end(), wanted.begin(), wanted.end(),
                      [](char a, char16_t b) { return static_cast<unsigned char>(a) == b && b < 0x80; });
}

bool IsElementNamed(const xmlNode* node, TextView name) noexcept {
    return node->type == XML_ELEMENT_NODE && IsNamed(node->name, node->ns, name);
}

const xmlNode* SkippingBlanks(const xmlNode* node) noexcept {
    while (node != nullptr && node->type == XML_TEXT_NODE && ::xmlIsBlankNode(node) != 0) node = node->next;
    return node;
}

/// The library's own 8-bit text. It has to outlive what is made of it.
const xmlChar* Units(const std::string& text) {
    return reinterpret_cast<const xmlChar*>(text.c_str()); // NOLINT(*-reinterpret-cast)
}

bool CanStandInXml(TextView text) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (unit < u' ' ? unit != u'\t' && unit != u'\n' && unit != u'\r' : unit >= 0xFFFE) return false;
        if (unit < 0xD800 || unit > 0xDFFF) continue;
        const bool paired = unit < 0xDC00 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
        if (!paired) return false;
        ++i;
    }
    return true;
}

} // namespace

bool XmlNode::IsElement() const noexcept {
    return node_ != nullptr && NodeOf(node_)->type == XML_ELEMENT_NODE;
}

std::optional<Text> XmlNode::Attribute(TextView name) const {
    if (!IsElement()) return {};
    const xmlAttr* attribute = NodeOf(node_)->properties;
    while (attribute != nullptr && !IsNamed(attribute->name, attribute->ns, name))
        attribute = attribute->next;
    if (attribute == nullptr) return {};
    if (attribute->children == nullptr) return Text();
    const Handle<xmlChar> value(Had(::xmlNodeListGetString(attribute->doc, attribute->children, 1)));
    return FromUtf8(reinterpret_cast<const char*>(value.get())); // NOLINT(*-reinterpret-cast)
}

XmlNode XmlNode::Child(TextView name) const noexcept {
    const xmlNode* child = NodeOf(FirstChild().node_);
    while (child != nullptr && !IsElementNamed(child, name)) child = child->next;
    return XmlNode(child);
}

XmlNode XmlNode::FirstChild() const noexcept {
    return IsElement() ? XmlNode(SkippingBlanks(NodeOf(node_)->children)) : XmlNode();
}

XmlNode XmlNode::NextSibling() const noexcept {
    return node_ != nullptr ? XmlNode(SkippingBlanks(NodeOf(node_)->next)) : XmlNode();
}

struct XmlReader::Document {
    Handle<xmlDoc> xml;
};

XmlReader::XmlReader(std::string_view bytes) : document_(std::make_unique<Document>()) {
    if (bytes.empty() || bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return;
    const Silence silence;
    const Handle<xmlParserCtxt> parser(
        Had(::xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size()))));
    ::xmlCtxtUseOptions(parser.get(), XML_PARSE_NONET | XML_PARSE_NOBLANKS | XML_PARSE_NOERROR |
                                          XML_PARSE_NOWARNING | XML_PARSE_COMPACT);
    // A document type ends it before anything that it declares is looked at.
    parser->sax->internalSubset = [](void* context, const xmlChar* /*name*/, const xmlChar* /*external*/,
                                     const xmlChar* /*system*/) {
        auto* const stopped = static_cast<xmlParserCtxt*>(context);
        stopped->wellFormed = 0;
        ::xmlStopParser(stopped);
    };
    ::xmlParseDocument(parser.get());
    if (parser->errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
    if (parser->wellFormed != 0 && parser->nsWellFormed != 0)
        document_->xml.reset(std::exchange(parser->myDoc, nullptr));
}

XmlReader::~XmlReader() = default;

bool XmlReader::IsOpen() const noexcept { return document_->xml != nullptr; }

XmlNode XmlReader::Root(TextView name) const noexcept {
    const xmlNode* const root = IsOpen() ? ::xmlDocGetRootElement(document_->xml.get()) : nullptr;
    return root != nullptr && IsElementNamed(root, name) ? XmlNode(root) : XmlNode();
}

struct XmlWriter::Document {
    Handle<xmlDoc> xml;
    xmlNode* open = nullptr;
};

XmlWriter::XmlWriter() : document_(std::make_unique<Document>()) {
    const Silence silence;
    document_->xml.reset(Had(::xmlNewDoc(nullptr)));
    // Without it characters beyond ASCII would be written as numbers.
    document_->xml->encoding = Had(::xmlCharStrdup("UTF-8"));
}

XmlWriter::~XmlWriter() = default;

void XmlWriter::Begin(TextView name) {
    const Silence silence;
    const std::string units = ToUtf8(name);
    xmlNode* const element = Had(::xmlNewDocNode(document_->xml.get(), nullptr, Units(units), nullptr));
    if (document_->open == nullptr)
        ::xmlDocSetRootElement(document_->xml.get(), element);
    else
        ::xmlAddChild(document_->open, element);
    document_->open = element;
}

void XmlWriter::Attribute(TextView name, TextView value, Where at) {
    if (value.size() > kMostUnits || !CanStandInXml(value)) throw Failure(Err::Argument, at);
    const Silence silence;
    const std::string nameUnits = ToUtf8(name);
    const std::string valueUnits = ToUtf8(value);
    Had(::xmlNewProp(document_->open, Units(nameUnits), Units(valueUnits)));
}

void XmlWriter::End() { document_->open = document_->open->parent; }

std::string XmlWriter::Finish() const {
    const Silence silence;
    const Handle<xmlBuffer> buffer(Had(::xmlBufferCreate()));
    xmlSaveCtxt* const saving = Had(::xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL));
    const bool saved = ::xmlSaveTree(saving, ::xmlDocGetRootElement(document_->xml.get())) >= 0;
    if (::xmlSaveClose(saving) < 0 || !saved) throw std::bad_alloc();
    const auto* const bytes =
        reinterpret_cast<const char*>(::xmlBufferContent(buffer.get())); // NOLINT(*-reinterpret-cast)
    return {bytes, static_cast<std::size_t>(::xmlBufferLength(buffer.get()))};
}

} // namespace htdrdd
