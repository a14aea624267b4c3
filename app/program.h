#pragma once

#include "document/puzzle_file.h"

#include <QString>

/// What the program says of itself.
namespace program {

inline const QString Name = "Glyphgrove";
inline const QString Version = QString::fromLatin1(document::Version.data(), document::Version.size());
inline const QString Maker = "Tallowick";
inline const QString MakerAddress = "https://www.tallowick.example/";
inline const QString NoticeLine = "Glyphgrove is made by Tallowick.";

} // namespace program
