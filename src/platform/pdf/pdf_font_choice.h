#pragma once

#include "platform/quartz/cg_font.h"

namespace kelvane {

/// @return whether a document can show the face: it carries a subset of it, or every reader has the
///         face.
bool PdfShows(const CGFontDescription& face);

/// @return whether a document can carry a subset of the face: version 1.4 has a place for its
///         outlines, and its licence allows it.
bool PdfEmbeds(const CGFontDescription& face);

}  // namespace kelvane
