// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleBoxes.h"
#include "LittlePhoto.h"

// Little HEIF, AVIF and CR3 files, box by box. They hold no picture that can be decoded.
namespace chronomender::little {

inline std::string boxBytes(std::string_view type, std::string_view body) {
    return box(type, std::string(body)).bytes;
}
inline std::string fullBox(std::string_view type, unsigned version, std::string_view body) {
    return boxBytes(type, big(std::size_t{version} << 24, 4).append(body));
}
inline std::string fileType(std::string_view major, std::string_view compatible = "mif1") {
    return boxBytes("ftyp", std::string(major).append(4, '\0').append(compatible));
}

/// The ways in which writers lay out the same items.
struct HeifForm {
    std::string brand = "heic";
    unsigned locationVersion = 0;
    std::size_t offsetWidth = 4, lengthWidth = 4, baseWidth = 0, indexWidth = 0;
    unsigned method = 0;        ///< 0: offsets in the file, 1: in `idat`
    unsigned itemVersion = 2;   ///< 3: item numbers of 32 bits
    std::size_t otherItems = 3; ///< items without metadata in front
    bool hasVersionedMeta = true;
    unsigned extents = 1;
    std::string exifPrefix{"Exif\0\0", 6}; ///< between the distance and the TIFF header
    std::string itemName = {}, contentType = "application/rdf+xml", contentEncoding = {};
};

/// A finished file with two metadata items behind each other.
struct BuiltHeif {
    std::string bytes;
    std::size_t tiffAt = 0, xmpAt = 0;
};

class Heif {
public:
    Heif(HeifForm form, std::string_view tiff, std::string_view xmp = {})
        : m_form(std::move(form)),
          m_exif(big(m_form.exifPrefix.size(), 4).append(m_form.exifPrefix).append(tiff)),
          m_xmp(xmp) {}

    BuiltHeif build() const {
        const std::string first = fileType(m_form.brand);
        const std::string data = m_exif + m_xmp;
        const bool isInside = m_form.method == 1;
        // The boxes are as long with any place, so that the first try tells where data will be.
        const std::size_t end = first.size() + meta(0).size();
        const std::size_t dataAt = isInside ? end - data.size() : end + 8;
        const std::string middle = meta(isInside ? 0 : dataAt);
        return {first + middle + boxBytes("mdat", isInside ? "picture" : data),
                dataAt + 4 + m_form.exifPrefix.size(), dataAt + m_exif.size()};
    }

private:
    bool isLong() const { return m_form.itemVersion == 3; }

    std::string entry(std::size_t id, std::string_view type, std::string_view texts) const {
        std::string body = big(id, isLong() ? 4 : 2) + big(0, 2);
        return fullBox("infe", m_form.itemVersion, body.append(type).append(texts));
    }
    std::string itemList() const {
        const std::size_t last = m_form.otherItems;
        std::string body = big(last + 2, isLong() ? 4 : 2);
        for (std::size_t id = 1; id <= last; ++id)
            body += entry(id, "hvc1", std::string(1, '\0'));
        const char zero = '\0';
        body += entry(last + 1, "Exif", m_form.itemName + zero);
        body += entry(last + 2, "mime",
                      m_form.itemName + zero + m_form.contentType + zero + m_form.contentEncoding +
                          (m_form.contentEncoding.empty() ? "" : std::string(1, zero)));
        return fullBox("iinf", isLong() ? 1 : 0, body);
    }
    std::string location(std::size_t id, std::size_t at, std::size_t length) const {
        std::string record = big(id, m_form.locationVersion >= 2 ? 4 : 2);
        if (m_form.locationVersion >= 1)
            record += big(m_form.method, 2);
        // With a base, offsets count from it.
        const std::size_t base = m_form.baseWidth > 0 ? at / 2 : 0;
        record += big(0, 2) + big(base, m_form.baseWidth) + big(m_form.extents, 2);
        for (unsigned extent = 0; extent < m_form.extents; ++extent)
            record += big(0, m_form.indexWidth) +
                      big(extent == 0 ? at - base : 0, m_form.offsetWidth) +
                      big(length, m_form.lengthWidth);
        return record;
    }
    std::string itemLocations(std::size_t dataAt) const {
        std::string body = big(m_form.offsetWidth << 4 | m_form.lengthWidth, 1) +
                           big(m_form.baseWidth << 4 | m_form.indexWidth, 1);
        const std::size_t last = m_form.otherItems;
        body += big(last + 2, m_form.locationVersion >= 2 ? 4 : 2);
        for (std::size_t id = 1; id <= last; ++id)
            body += location(id, 4, 4);
        body += location(last + 1, dataAt, m_exif.size());
        body += location(last + 2, dataAt + m_exif.size(), m_xmp.size());
        return fullBox("iloc", m_form.locationVersion, body);
    }
    std::string meta(std::size_t dataAt) const {
        std::string children = fullBox("hdlr", 0, std::string(20, '\0'));
        children += itemList() + itemLocations(dataAt);
        if (m_form.method == 1)
            children += boxBytes("idat", m_exif + m_xmp);
        return m_form.hasVersionedMeta ? fullBox("meta", 0, children) : boxBytes("meta", children);
    }

    HeifForm m_form;
    std::string m_exif, m_xmp;
};

inline BuiltPhoto heifPhoto(const PhotoFields &fields, const HeifForm &form = {}) {
    const BuiltTiff tiff = photoEntries(fields).build();
    const BuiltHeif built = Heif(form, tiff.bytes, fields.xmp).build();
    return {built.bytes, namedOffsets(tiff, built.tiffAt)};
}

/// Which blocks a CR3 file has.
struct Cr3Form {
    bool hasFirst = true, hasExif = true, hasGps = true;
};

inline constexpr std::string_view kLittleCanonUuid{
    "\x85\xc0\xb6\x87\x82\x0f\x11\xe0\x81\x11\xf4\xce\x46\x2b\x6a\x48", 16};
inline constexpr std::string_view kLittleXmpUuid{
    "\xbe\x7a\xcf\xcb\x97\xa9\x42\xe8\x9c\x71\x99\x94\x91\xe3\xaf\xac", 16};

/// A CR3 file; `CMT1`, `CMT2` and `CMT4` hold the first, the Exif and the GPS directory, each as
/// the first one behind a header of its own. The packet of `fields` stands in a box behind `moov`.
inline BuiltPhoto cr3Photo(const PhotoFields &fields, const Cr3Form &form = {}) {
    const BuiltTiff tiff = photoEntries(fields).build();
    BuiltPhoto photo{fileType("crx ", "isom"), {}};
    std::string content = boxBytes("CNCV", std::string(30, 'v'));
    const std::size_t contentAt = photo.bytes.size() + 8 + 8 + kLittleCanonUuid.size();
    for (const auto &[type, directory, isThere] :
         {std::tuple{"CMT1", Directory::First, form.hasFirst},
          std::tuple{"CMT2", Directory::Exif, form.hasExif},
          std::tuple{"CMT4", Directory::Gps, form.hasGps}}) {
        if (!isThere || !tiff.directories.contains(directory))
            continue;
        std::string block = tiff.bytes;
        block.replace(4, 4, number(tiff.directories.at(directory), 4, fields.endian));
        for (const NamedTag &named : kNamedTags) {
            const auto found = tiff.values.find({named.directory, named.tag});
            if (named.directory == directory && found != tiff.values.end())
                photo.offsets[named.name] = contentAt + content.size() + 8 + found->second;
        }
        content += boxBytes(type, block);
    }
    photo.bytes += boxBytes("moov", boxBytes("uuid", std::string(kLittleCanonUuid) + content));
    if (!fields.xmp.empty())
        photo.bytes += boxBytes("uuid", std::string(kLittleXmpUuid) + fields.xmp);
    photo.bytes += boxBytes("mdat", std::string(fields.bodyLength, '\x55'));
    return photo;
}

} // namespace chronomender::little
