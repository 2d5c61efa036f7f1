#pragma once

#include <iosfwd>
#include <span>

namespace kelvane {

/// Writes every record of a metafile, enhanced or 16-bit, with its fields, a line a record, in
/// UTF-8:
///
///     108 EMR_SETMAPMODE Size=12 MapMode=MM_ANISOTROPIC
///
/// First comes the record's offset in the file, of a compressed one in what it inflates to. In a
/// print job the records of a page follow the one that holds them, and count from its beginning. A
/// record that is too short for its fields ends in Damaged="…", with zeros for what is missing. A
/// last line says where the records end, when that is elsewhere than in an EMR_EOF or META_EOF at
/// the end of the file. How values are written, FieldWriter says.
/// @param file  any bytes. @param out  gets a piece at a time, and no more once it fails.
/// @return whether the file is a metafile; of what is none nothing is written.
bool Dump(std::span<const unsigned char> file, std::ostream& out);

}  // namespace kelvane
