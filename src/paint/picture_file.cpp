// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/picture_file.h"

#include <cstddef>
#include <span>
#include <string>

#include <QBuffer>
#include <QImage>

#include "base/files.h"

namespace campora {

std::optional<Failure> savePicture(const Picture& picture, std::string_view path,
                                   PictureForm form) {
    const QImage image(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                       picture.height, QImage::Format_RGB32);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const char* const format = form == PictureForm::Bmp ? "BMP" : "PNG";
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format)) {
        return because(TextId::FileCannotBeWritten, {std::string(path)},
                       {TextId::FileTooLarge, {}});
    }
    return writeFile(
        path, std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size()))));
}

}  // namespace campora
