#include "htdrdd91/platform/xml_document.h"

#include "htdrdd91/platform/encoding.h"

#include <algorithm>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlsave.h>
#include <new>
#include <utility>

namespace htdrdd {
namespace {

struct Freer {
    void operator()(xmlDoc* document) const noexcept { ::xmlFreeDoc(document); }
    void operator()(xmlParserCtxt* parser) const noexcept {
        if (parser->myDoc != nullptr) ::xmlFreeDoc(parser->myDoc); // left by a failed parse
        ::xmlFreeParserCtxt(parser);
    }
};
template <class T>
using Handle = std::unique_ptr<T, Freer>;

constexpr std::size_t kMostUnits = 100'000'000; ///< the reader takes 1,000 million bytes, and '"' needs 6

/// Checks a result of the XML library, which returns a null pointer only if it has no memory.
template <class T>
T* Had(T* object) {
    if (object == nullptr) throw std::bad_alloc();
    return object;
}

/// Receives the errors of the XML library, which prints them otherwise. Restores the previous handler of this
/// thread at the end, since the host may use the library as well.
class Listening {
public:
    Listening() {
        // Once, before any other use of the library.
        static const bool initialized = (::xmlInitParser(), true);
        static_cast<void>(initialized);
        handler_ = xmlStructuredError; // both are macros
        context_ = xmlStructuredErrorContext;
        ::xmlSetStructuredErrorFunc(this, [](void* listening, xmlError* error) {
            if (error->code == XML_ERR_NO_MEMORY) static_cast<Listening*>(listening)->noMemory_ = true;
        });
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening() { ::xmlSetStructuredErrorFunc(context_, handler_); }
    /// The library may omit parts for which it has no memory, and only report an error.
    void DemandMemory() const {
        if (noMemory_) throw std::bad_alloc();
    }

private:
    xmlStructuredErrorFunc handler_ = nullptr;
    void* context_ = nullptr;
    bool noMemory_ = false;
};

const char* Chars(const xmlChar* text) noexcept {
    return reinterpret_cast<const char*>(text); // NOLINT(*-reinterpret-cast)
}

const xmlNode* NodeOf(const void* node) noexcept { return static_cast<const xmlNode*>(node); }

bool IsNamed(const xmlChar* name, const xmlNs* ns, TextView wanted) noexcept {
    if (ns != nullptr) return false;
    const std::string_view units(Chars(name));
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

/// A text as the XML library takes it. It must outlive the result.
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
    std::string value; // without a document type its nodes are all texts
    for (const xmlNode* text = attribute->children; text != nullptr; text = text->next)
        if (text->content != nullptr) value += Chars(text->content);
    return FromUtf8(value);
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

namespace {

/// A document as UTF-8 without a byte order mark; std::nullopt if it is not text that XML can hold.
std::optional<std::string> Decoded(std::string_view bytes) {
    const bool isLittleEndian = bytes.starts_with(kUtf16Mark);
    if (!isLittleEndian && !bytes.starts_with("\xFE\xFF")) {
        if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
        // The XML library would take a NUL for the end.
        return bytes.find('\0') == std::string_view::npos ? std::optional<std::string>(bytes) : std::nullopt;
    }
    bytes.remove_prefix(kUtf16Mark.size());
    if (bytes.size() % 2 != 0) return {};
    const Text text = FromUtf16(bytes, isLittleEndian ? std::endian::little : std::endian::big);
    return CanStandInXml(text) ? std::optional(ToUtf8(text)) : std::nullopt;
}

/// Whether elements are nested too deep, or an element has more attributes than any file of this library: the
/// XML library compares each attribute with every other.
bool IsTooMuch(std::string_view xml) {
    constexpr int kDeepest = 250;
    constexpr int kMostAttributes = 500;
    const auto skip = [&xml](std::string_view end) {
        xml.remove_prefix(std::min(xml.find(end), xml.size()));
    };
    int depth = 0;
    while (skip("<"), !xml.empty()) {
        if (xml.starts_with("<!--")) {
            xml.remove_prefix(4);
            skip("-->");
        } else if (xml.starts_with("<![CDATA[")) {
            skip("]]>");
        } else if (xml.starts_with("<?")) {
            skip("?>");
        } else {
            depth += xml.starts_with("</") ? -1 : 1;
            int attributes = 0;
            for (char last = 0; !xml.empty(); xml.remove_prefix(1)) {
                const char unit = xml[0];
                if (unit == '>') {
                    if (last == '/') --depth;
                    break;
                }
                if (unit == '"' || unit == '\'') {
                    ++attributes;
                    xml.remove_prefix(1);
                    skip({&unit, 1});
                    if (xml.empty()) break;
                }
                last = unit;
            }
            if (depth > kDeepest || attributes > kMostAttributes) return true;
        }
    }
    return false;
}

/// Passes the next piece of a document to the XML library.
int ReadPiece(void* context, char* piece, int length) {
    auto& rest = *static_cast<std::string_view*>(context);
    const std::size_t size = rest.copy(piece, static_cast<std::size_t>(length));
    rest.remove_prefix(size);
    return static_cast<int>(size);
}

} // namespace

struct XmlReader::Document {
    Handle<xmlDoc> xml;
};

XmlReader::XmlReader(std::string_view bytes) : document_(std::make_unique<Document>()) {
    const auto decoded = Decoded(bytes);
    if (!decoded || IsTooMuch(*decoded)) return;
    const Listening listening;
    const Handle<xmlParserCtxt> parser(Had(::xmlNewParserCtxt()));
    // A document type stops the parser before any of its declarations is read.
    parser->sax->internalSubset = [](void* context, const xmlChar* /*name*/, const xmlChar* /*external*/,
                                     const xmlChar* /*system*/) {
        auto* const stopped = static_cast<xmlParserCtxt*>(context);
        stopped->wellFormed = 0;
        ::xmlStopParser(stopped);
    };
    std::string_view rest = *decoded;
    // Without the library's limits, which could refuse files written here; IsTooMuch has its own.
    Handle<xmlDoc> xml(::xmlCtxtReadIO(parser.get(), ReadPiece, nullptr, &rest, nullptr, "UTF-8",
                                       XML_PARSE_NONET | XML_PARSE_NOBLANKS | XML_PARSE_NOERROR |
                                           XML_PARSE_NOWARNING | XML_PARSE_COMPACT | XML_PARSE_IGNORE_ENC |
                                           XML_PARSE_HUGE));
    listening.DemandMemory();
    if (xml && parser->nsWellFormed != 0) document_->xml = std::move(xml);
}

XmlReader::~XmlReader() = default;

XmlNode XmlReader::Root(TextView name) const noexcept {
    const xmlNode* const root = document_->xml ? ::xmlDocGetRootElement(document_->xml.get()) : nullptr;
    return root != nullptr && IsElementNamed(root, name) ? XmlNode(root) : XmlNode();
}

struct XmlWriter::Document {
    Handle<xmlDoc> xml;
    xmlNode* open = nullptr;
};

XmlWriter::XmlWriter() : document_(std::make_unique<Document>()) {
    const Listening listening;
    document_->xml.reset(Had(::xmlNewDoc(nullptr)));
    // Without an encoding, characters beyond ASCII would be written as numbers.
    document_->xml->encoding = Had(::xmlCharStrdup("UTF-8"));
}

XmlWriter::~XmlWriter() = default;

void XmlWriter::Begin(TextView name) {
    const Listening listening;
    const std::string units = ToUtf8(name);
    xmlNode* const element = Had(::xmlNewDocNode(document_->xml.get(), nullptr, Units(units), nullptr));
    if (document_->open == nullptr)
        ::xmlDocSetRootElement(document_->xml.get(), element);
    else
        ::xmlAddChild(document_->open, element);
    document_->open = element;
    listening.DemandMemory();
}

void XmlWriter::Attribute(TextView name, TextView value, Where at) {
    if (value.size() > kMostUnits || !CanStandInXml(value)) throw Failure(Err::Argument, at);
    const Listening listening;
    const std::string nameUnits = ToUtf8(name);
    const std::string valueUnits = ToUtf8(value);
    Had(::xmlNewProp(document_->open, Units(nameUnits), Units(valueUnits)));
    listening.DemandMemory();
}

void XmlWriter::End() { document_->open = document_->open->parent; }

std::string XmlWriter::Finish() const {
    const Listening listening;
    std::string bytes;
    const auto append = [](void* context, const char* piece, int length) {
        try {
            static_cast<std::string*>(context)->append(piece, static_cast<std::size_t>(length));
            return length;
        } catch (...) { return -1; }
    };
    xmlSaveCtxt* const saving = Had(::xmlSaveToIO(append, nullptr, &bytes, "UTF-8", XML_SAVE_NO_DECL));
    const bool saved = ::xmlSaveTree(saving, ::xmlDocGetRootElement(document_->xml.get())) >= 0;
    if (::xmlSaveClose(saving) < 0 || !saved) throw std::bad_alloc();
    listening.DemandMemory();
    return bytes;
}

} // namespace htdrdd
