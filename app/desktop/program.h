#pragma once

#include "document/puzzle_file.h"

#include <QString>

/// What the program says about itself, and the title of a puzzle that has none yet.
namespace program {

inline const QString Name = "Glyphgrove";
inline const QString Version = QString::fromLatin1(document::Version);
inline const QString Maker = "Tallowick";
inline const QString MakerAddress = "https://www.tallowick.example/";
inline const QString NoticeLine = "Glyphgrove is made by Tallowick.";
inline const QString NewPuzzle = "New Puzzle";

} // namespace program
