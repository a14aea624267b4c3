#pragma once

class QSaveFile;

/// Puts the complete `file` in the place of the earlier one. False when that is refused, or would change who may read
/// and write it, its attributes or its other names; the earlier file is then unchanged and nothing stays beside it.
bool ReplaceEarlierFile(QSaveFile& file);
