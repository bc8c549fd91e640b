// SPDX-License-Identifier: GPL-3.0-or-later
#include "JpegDecoder.h"

#include "UprightImage.h"

#include <bit>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <jpeglib.h>

namespace chronomender {

namespace {

constexpr J_COLOR_SPACE kScreenPixels =
    std::endian::native == std::endian::little ? JCS_EXT_BGRA : JCS_EXT_ARGB;
/// A progressive picture of a camera has about ten; thousands only serve to keep us busy.
constexpr int kMostScans = 200;
constexpr int kProfileMarker = JPEG_APP0 + 2;
constexpr unsigned kLongestSegment = 0xFFFF;

/// One run of the library. Its errors jump back to the last `setjmp`, so that nothing with a
/// destructor lives in the functions between; everything is a member.
class JpegDecoder {
public:
    JpegDecoder(std::string_view bytes, int side, const PicturePatience &patience)
        : m_bytes(bytes), m_side(side), m_patience(patience) {
        m_info.err = jpeg_std_error(&m_errors);
        m_errors.error_exit = [](j_common_ptr info) { decoderOf(info).giveUp(); };
        m_errors.emit_message = [](j_common_ptr, int) {};
        m_errors.output_message = [](j_common_ptr) {};
        m_info.client_data = this;
        m_progress.progress_monitor = [](j_common_ptr info) { decoderOf(info).lookAtClock(); };
    }
    ~JpegDecoder() { jpeg_destroy_decompress(&m_info); }
    JpegDecoder(const JpegDecoder &) = delete;
    JpegDecoder &operator=(const JpegDecoder &) = delete;

    UprightPicture run() {
        if (setjmp(m_back) == 0)
            decode();
        if (m_image.isNull() || m_rowsDone == 0)
            return failed(m_failure);
        const QColorSpace space =
            m_profile.isEmpty() ? QColorSpace() : QColorSpace::fromIccProfile(m_profile);
        return pictureOr(inScreenColours(scaledToSide(m_image, m_side), space), false, m_failure);
    }

private:
    static JpegDecoder &decoderOf(j_common_ptr info) {
        return *static_cast<JpegDecoder *>(info->client_data);
    }

    [[noreturn]] void giveUp() { std::longjmp(m_back, 1); }

    void lookAtClock() {
        if (m_info.input_scan_number > kMostScans) {
            m_failure = PictureFailure::TooLarge;
            giveUp();
        }
        if (m_patience.isOver()) {
            m_failure = m_patience.failureOr(m_failure);
            m_rowsDone = 0;
            giveUp();
        }
    }

    void decode() {
        jpeg_create_decompress(&m_info);
        m_info.client_data = this;
        m_info.progress = &m_progress;
        m_info.mem->max_memory_to_use = static_cast<long>(kMostPictureBytes);
        jpeg_mem_src(&m_info, reinterpret_cast<const unsigned char *>(m_bytes.data()),
                     static_cast<unsigned long>(m_bytes.size()));
        jpeg_save_markers(&m_info, kProfileMarker, kLongestSegment);
        if (jpeg_read_header(&m_info, TRUE) != JPEG_HEADER_OK)
            return;
        if (std::uint64_t{m_info.image_width} * m_info.image_height > kMostPicturePixels) {
            m_failure = PictureFailure::TooLarge;
            return;
        }
        chooseScale();
        takeProfile();
        jpeg_start_decompress(&m_info);
        makeImage();
        while (!m_image.isNull() && m_info.output_scanline < m_info.output_height)
            readRow();
    }

    void chooseScale() {
        const auto longer = std::max(m_info.image_width, m_info.image_height);
        m_info.scale_num = 1;
        for (m_info.scale_denom = 8; m_info.scale_denom > 1; m_info.scale_denom /= 2) {
            if (longer / m_info.scale_denom >= static_cast<unsigned>(m_side))
                break;
        }
        const bool isPrinted = m_info.num_components == 4;
        m_info.out_color_space = isPrinted ? JCS_CMYK : kScreenPixels;
        m_info.do_fancy_upsampling = m_info.scale_denom == 1 ? TRUE : FALSE;
    }

    void takeProfile() {
        JOCTET *data = nullptr;
        unsigned length = 0;
        if (m_info.num_components != 3 || !jpeg_read_icc_profile(&m_info, &data, &length))
            return;
        m_profile = QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(length));
        std::free(data);
    }

    void makeImage() {
        m_image = QImage(static_cast<int>(m_info.output_width),
                         static_cast<int>(m_info.output_height), QImage::Format_RGB32);
        if (m_image.isNull()) {
            m_failure = PictureFailure::TooLarge;
            return;
        }
        m_image.fill(Qt::gray);
        if (m_info.out_color_space == JCS_CMYK)
            m_inks.resize(std::size_t{m_info.output_width} * 4);
    }

    void readRow() {
        const auto row = static_cast<int>(m_info.output_scanline);
        JSAMPROW target = m_inks.empty() ? m_image.scanLine(row) : m_inks.data();
        if (jpeg_read_scanlines(&m_info, &target, 1) != 1)
            giveUp();
        if (!m_inks.empty())
            mixInks(reinterpret_cast<QRgb *>(m_image.scanLine(row)));
        ++m_rowsDone;
    }

    /// Programs that write inks write them inverted, as 255 minus the ink.
    void mixInks(QRgb *pixels) const {
        const bool isInverted = m_info.saw_Adobe_marker;
        const auto light = [&](std::size_t at) {
            return isInverted ? m_inks[at] : 255 - m_inks[at];
        };
        for (std::size_t i = 0; i < m_info.output_width; ++i) {
            const int black = light(i * 4 + 3);
            pixels[i] = qRgb(light(i * 4) * black / 255, light(i * 4 + 1) * black / 255,
                             light(i * 4 + 2) * black / 255);
        }
    }

    std::string_view m_bytes;
    int m_side;
    const PicturePatience &m_patience;
    jpeg_decompress_struct m_info{};
    jpeg_error_mgr m_errors{};
    jpeg_progress_mgr m_progress{};
    std::jmp_buf m_back;
    QImage m_image;
    QByteArray m_profile;
    std::vector<JSAMPLE> m_inks;
    int m_rowsDone = 0;
    PictureFailure m_failure = PictureFailure::DamagedOrUnknown;
};

} // namespace

UprightPicture decodeJpeg(std::string_view bytes, int side, const PicturePatience &patience) {
    return JpegDecoder(bytes, side, patience).run();
}

} // namespace chronomender
