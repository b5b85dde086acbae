/// XML documents, held as a whole in memory.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace htdrdd {

/// A node of a parsed document; lives as long as the document. A missing node converts to false, and its
/// members return empty results. White space alone is not a node.
class XmlNode {
public:
    XmlNode() = default;
    explicit operator bool() const noexcept { return node_ != nullptr; }
    /// False for a text, a comment and the like.
    [[nodiscard]] bool IsElement() const noexcept;
    /// The value of an attribute, or std::nullopt if the node doesn't have it.
    [[nodiscard]] std::optional<Text> Attribute(TextView name) const;
    /// The first child element with the name.
    [[nodiscard]] XmlNode Child(TextView name) const noexcept;
    /// FirstChild, followed by NextSibling, walks the children of a node.
    [[nodiscard]] XmlNode FirstChild() const noexcept;
    [[nodiscard]] XmlNode NextSibling() const noexcept;

private:
    friend class XmlReader;
    explicit XmlNode(const void* node) noexcept : node_(node) {}
    const void* node_ = nullptr; ///< a node of the XML library
};

/// Reads a document in UTF-8, with or without a byte order mark, or in UTF-16 with a mark. The encoding in
/// its declaration is ignored. A name in a namespace differs from the same name without one.
class XmlReader {
public:
    /// Afterwards there is no root if the bytes are not well-formed XML or have a document type, which can
    /// name other files and grow without end. Documents with elements nested more than 250 deep or with more
    /// than 500 attributes in an element have no root either.
    explicit XmlReader(std::string_view bytes);
    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;
    ~XmlReader();

    /// The outermost element, if it has the name.
    [[nodiscard]] XmlNode Root(TextView name) const noexcept;

private:
    struct Document;
    std::unique_ptr<Document> document_;
};

/// Writes a document, element by element, without white space between them.
class XmlWriter {
public:
    XmlWriter();
    XmlWriter(const XmlWriter&) = delete;
    XmlWriter& operator=(const XmlWriter&) = delete;
    ~XmlWriter();

    /// Opens an element inside the open one; the first element holds all others.
    void Begin(TextView name);
    /// Adds an attribute to the open element. Fails with 5 for a value with characters that XML can't hold
    /// (most control characters, unpaired surrogates, U+FFFE and U+FFFF), and for a value of more than a
    /// hundred million units, which a reader might refuse.
    void Attribute(TextView name, TextView value, Where at = Where::current());
    void End();
    /// The whole document in UTF-8, without a declaration.
    [[nodiscard]] std::string Finish() const;

private:
    struct Document;
    std::unique_ptr<Document> document_;
};

} // namespace htdrdd
