/// XML documents, as a whole in memory.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace htdrdd {

/// A node of a document that was read; it lasts as long as the document. One that isn't there is false, and
/// asking it gives nothing. White space alone is no node.
class XmlNode {
public:
    XmlNode() = default;
    explicit operator bool() const noexcept { return node_ != nullptr; }
    /// False for a text, a comment and the like.
    [[nodiscard]] bool IsElement() const noexcept;
    /// The value of an attribute, where the node has it.
    [[nodiscard]] std::optional<Text> Attribute(TextView name) const;
    /// The first element of that name inside this node.
    [[nodiscard]] XmlNode Child(TextView name) const noexcept;
    /// The nodes inside this one are FirstChild and what follows it with NextSibling.
    [[nodiscard]] XmlNode FirstChild() const noexcept;
    [[nodiscard]] XmlNode NextSibling() const noexcept;

private:
    friend class XmlReader;
    explicit XmlNode(const void* node) noexcept : node_(node) {}
    const void* node_ = nullptr; ///< as the XML library has it
};

/// A document to read, in UTF-8 with or without a byte order mark or in UTF-16 with one, whatever its
/// declaration says. Names in a namespace are other names than those without.
class XmlReader {
public:
    /// Has no root afterwards where the bytes are no well-formed document, or one with a document type: those
    /// can name other files and grow without end. Elements more than 250 deep and those with more than
    /// 500 attributes aren't read either.
    explicit XmlReader(std::string_view bytes);
    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;
    ~XmlReader();

    /// The outermost element, where it has that name.
    [[nodiscard]] XmlNode Root(TextView name) const noexcept;

private:
    struct Document;
    std::unique_ptr<Document> document_;
};

/// A document to write, element by element, without white space between them.
class XmlWriter {
public:
    XmlWriter();
    XmlWriter(const XmlWriter&) = delete;
    XmlWriter& operator=(const XmlWriter&) = delete;
    ~XmlWriter();

    /// Opens an element inside the one that is open; the first one holds all others.
    void Begin(TextView name);
    /// Adds an attribute to the element that is open. Fails with 5 for a value with characters that XML can't
    /// hold, most control characters, unpaired surrogates, U+FFFE and U+FFFF, and for one of more than a
    /// hundred million units, which might be refused when it is read.
    void Attribute(TextView name, TextView value, Where at = Where::current());
    void End();
    /// The whole document in UTF-8, without a declaration.
    [[nodiscard]] std::string Finish() const;

private:
    struct Document;
    std::unique_ptr<Document> document_;
};

} // namespace htdrdd
