#pragma once

#include <QString>

#include <string>

/// The bytes of the user's files. Devices and pipes can go on for ever or wait for ever, and a folder is no file:
/// none of them is touched.
namespace file_bytes {

/// The first `most` bytes of the regular file at `path`, or all where it is shorter; empty when it cannot be read.
std::string Read(const QString& path, std::size_t most);

/// Puts a file of `bytes` at `path`, or what a link there leads to. The new contents are written beside the old
/// ones and take their place when complete; only where the folder takes no new file, or none in that place, are
/// they written over them. False when that fails: an earlier file is then what it was, to the byte.
bool Save(const QString& path, const std::string& bytes);

} // namespace file_bytes
