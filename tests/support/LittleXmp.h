// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace chronomender::little {

/// Writes an XMP packet property by property and keeps where each value stands. Attributes come
/// first, as in one rdf:Description.
///
///     Xmp().attribute("xmp:CreateDate", "2024-05-06T07:08:09").build().at("xmp:CreateDate")
class Xmp {
public:
    /// `equals` is what stands between name and value, `quote` opens and closes it.
    Xmp &attribute(const std::string &name, std::string_view value, char quote = '"',
                   std::string_view equals = "=") {
        m_bytes += "\n   " + name;
        m_bytes.append(equals) += quote;
        return put(name, value).raw(std::string(1, quote));
    }
    Xmp &element(const std::string &name, std::string_view value) {
        closeDescription();
        m_bytes += "  <" + name + '>';
        return put(name, value).raw("</" + name + ">\n");
    }
    Xmp &raw(std::string_view text) {
        m_bytes += text;
        return *this;
    }
    /// Text that fills the packet up to this length.
    Xmp &fillTo(std::size_t length) {
        closeDescription();
        if (m_bytes.size() < length)
            m_bytes.append(length - m_bytes.size(), ' ');
        return *this;
    }
    Xmp &end() {
        closeDescription();
        return raw("</rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>");
    }

    const std::string &bytes() const { return m_bytes; }
    /// Where the value of a property stands, from the packet's beginning.
    std::size_t at(const std::string &name) const { return m_offsets.at(name); }

private:
    Xmp &put(const std::string &name, std::string_view value) {
        m_offsets.try_emplace(name, m_bytes.size());
        return raw(value);
    }
    void closeDescription() {
        if (!m_isClosed)
            m_bytes += ">\n";
        m_isClosed = true;
    }

    std::string m_bytes{"<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
                        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF><rdf:Description"};
    std::map<std::string, std::size_t> m_offsets;
    bool m_isClosed = false;
};

/// A packet with one attribute.
inline std::string xmpWith(const std::string &name, std::string_view value) {
    return Xmp().attribute(name, value).end().bytes();
}

} // namespace chronomender::little
