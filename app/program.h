#pragma once

#include <QString>

/// What the program says about itself, and the title of a puzzle that has none yet.
namespace program {

inline const QString Name = "Glyphgrove";
inline const QString Version = GLYPHGROVE_VERSION;
inline const QString Maker = "Tallowick";
inline const QString MakerAddress = "https://www.tallowick.example/";
inline const QString NoticeLine = "Glyphgrove is made by Tallowick.";
inline const QString NewPuzzle = "New Puzzle";

} // namespace program
