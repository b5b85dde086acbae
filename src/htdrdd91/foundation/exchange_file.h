/// Exchange files: XML documents that carry one object between installations. The outermost element tells
/// what they hold; the one element inside it, named after that, holds it.
#pragma once

#include "htdrdd91/platform/xml_document.h"

#include <memory>

namespace htdrdd {

class ExchangeWriter {
public:
    /// Opens the element that holds the object.
    explicit ExchangeWriter(TextView sFileType);

    [[nodiscard]] XmlWriter& Xml() noexcept { return xml_; }
    /// Ends the document and writes it; an existing file is replaced and keeps its rights. Whether the file
    /// is there then. Fails as writing a file does, and an existing one is still what it was.
    [[nodiscard]] bool Save(TextView sFileName, Where at = Where::current());

private:
    XmlWriter xml_;
};

class ExchangeReader {
public:
    ExchangeReader(TextView sFileName, TextView sFileType);

    /// The element that holds the object. None where the file can't be read, is no XML document, or holds
    /// something else. It lasts as long as the reader.
    [[nodiscard]] const XmlNode& Content() const noexcept { return content_; }

private:
    std::unique_ptr<const XmlReader> xml_;
    XmlNode content_;
};

} // namespace htdrdd
