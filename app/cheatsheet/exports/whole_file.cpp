#include "whole_file.h"

#include <QFile>
#include <QSaveFile>

namespace quillon {

namespace {

/// A full disk takes a part first and tells why only when it is given the rest.
bool writeAll(QSaveFile& file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const qint64 count = file.write(bytes.data(), bytes.size());
        if (count <= 0)
            return false;
        bytes = bytes.sliced(count);
    }
    return true;
}

} // namespace

std::optional<QString> writeWhole(const std::filesystem::path& file, QByteArrayView bytes) {
    QSaveFile written(QFile::decodeName(file.c_str()));
    if (written.open(QIODevice::WriteOnly) && writeAll(written, bytes) && written.commit())
        return std::nullopt;
    return written.errorString();
}

} // namespace quillon
