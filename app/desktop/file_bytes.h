#pragma once

#include <QByteArrayView>
#include <QString>

#include <string>

/// Reads and writes the user's files, and regular files only: devices and pipes may never end. While another program
/// holds a file on Windows, tries again for a second.
namespace file_bytes {

/// Returns up to `most` bytes from the start of the file at `path`; none when it cannot be read.
std::string Read(const QString& path, std::size_t most);

/// Saves `bytes` at `path`, or where a link there leads. The new file is written beside the old one and replaces it
/// when complete. The old file is overwritten where the folder does not allow that, or where it would change who may
/// read and write the file, its attributes or its other names. False on failure: the old file is then unchanged to
/// the byte.
bool Save(const QString& path, QByteArrayView bytes);

} // namespace file_bytes
