// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// Which dates a movie's header gave. The numbers are those of the date sources of items.
enum class MovieType : std::uint8_t {
    Riff = 15,     ///< the date text of an AVI
    Creation = 16, ///< at least a creation time, or a creation date of the metadata
    ModificationOnly = 17,
    Empty = 19, ///< both header times are zero: the movie form of an empty tag
};

/// An ISO 6709 text such as "+48.1234+011.5678/", and where in the movie it stands.
struct QtLocation {
    /// The persisted numbers of the places.
    enum class Place : std::uint8_t {
        MetadataKeys = 1,  ///< "com.apple.quicktime.location.ISO6709"
        UserData = 2,      ///< "\xA9xyz" in `udta`
        UserDataItems = 3, ///< "\xA9xyz" in `udta/meta/ilst`
    };
    Place place{};
    LocatedBytes value;
    std::optional<LocatedBytes> hAccuracy; ///< metres, as text; with MetadataKeys only

    bool operator==(const QtLocation &) const = default;
};

/// What one read of a movie's header found.
struct MovieHeader {
    MovieType movieType{};
    std::optional<LocatedBytes> creaDate, modDate; ///< `mvhd` times: 4 bytes, seconds since 1904
    std::optional<LocatedBytes> qtCreationDate; ///< "com.apple.quicktime.creationdate": 20, 24, 25
    std::vector<QtLocation> qtLocations;        ///< in the order of their places
    std::optional<LocatedBytes> riffCreaDate;   ///< 26 bytes of `IDIT`
    std::string infoString;                     ///< `ISFT`, the maker's words; "" if absent
    std::vector<Finding> findings;
};

/// What a movie says of itself besides dates and places. Absent values are empty.
struct MovieDetails {
    double movDuration = -1; ///< seconds; -1 unknown
    std::string make, model;
    std::string contentIdentifier; ///< joins the movie with the still of a live photo
    std::int32_t width = 0, height = 0;
    /// A timed metadata track announces "com.apple.quicktime.live-photo-info".
    bool hasLivePhotoInfo = false;
    /// Seconds from the movie's start to the moment of the still; none without such a track.
    std::optional<double> stillImageTime;
};

} // namespace chronomender
