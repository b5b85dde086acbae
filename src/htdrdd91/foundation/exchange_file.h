/// Exchange files: XML documents that carry one object between installations. The outermost element names the
/// type of the object; the only element inside it has that name and holds the object.
#pragma once

#include "htdrdd91/platform/xml_document.h"

#include <memory>

namespace htdrdd {

class ExchangeWriter {
public:
    /// Opens the element that holds the object.
    explicit ExchangeWriter(TextView sFileType);

    [[nodiscard]] XmlWriter& Xml() noexcept { return xml_; }
    /// Ends the document and writes it; an existing file is replaced and keeps its permissions. Returns
    /// whether the file exists afterwards. Fails as writing a file does; an existing file is then unchanged.
    [[nodiscard]] bool Save(TextView sFileName, Where at = Where::current());

private:
    XmlWriter xml_;
};

class ExchangeReader {
public:
    ExchangeReader(TextView sFileName, TextView sFileType);

    /// The element that holds the object; missing if the file can't be read, is not an XML document, or holds
    /// something else. Lives as long as the reader.
    [[nodiscard]] const XmlNode& Content() const noexcept { return content_; }

private:
    std::unique_ptr<const XmlReader> xml_;
    XmlNode content_;
};

} // namespace htdrdd
