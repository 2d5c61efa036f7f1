#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

/// Of records that leave no mark on a page.
constexpr PlayEmfRecord kNoMark = [](EmfPlayback&, ByteView&) {};

constexpr PlayEmfRecord kNoOpenGL = [](EmfPlayback& p, ByteView&) {
  p.LeftOut("OpenGL is not drawn");
};
constexpr PlayEmfRecord kNoDriver = [](EmfPlayback& p, ByteView&) {
  p.LeftOut("it speaks to the driver of a printer");
};

constexpr EmfHandler kUnplayedHandlers[] = {
    {EMR_HEADER, kNoMark},
    {EMR_EOF, kNoMark},

    {EMR_GLSRECORD, kNoOpenGL},
    {EMR_GLSBOUNDEDRECORD, kNoOpenGL},
    {EMR_DRAWESCAPE, kNoDriver},

    // How fonts are chosen on the recorder's machine.
    {EMR_SETMAPPERFLAGS, kNoMark},
    {EMR_FORCEUFIMAPPING, kNoMark},
    {EMR_SETLINKEDUFIS, kNoMark},

    // A page has the colours that the records name: no palette of a display, no colour management.
    {EMR_REALIZEPALETTE, kNoMark},
    {EMR_SETCOLORADJUSTMENT, kNoMark},
    {EMR_COLORCORRECTPALETTE, kNoMark},
    {EMR_SETICMMODE, kNoMark},
    {EMR_SETICMPROFILEA, kNoMark},
    {EMR_SETICMPROFILEW, kNoMark},
    {EMR_CREATECOLORSPACE, kNoMark},
    {EMR_CREATECOLORSPACEW, kNoMark},
    {EMR_SETCOLORSPACE, kNoMark},
    {EMR_DELETECOLORSPACE, kNoMark},
    {EMR_COLORMATCHTOTARGETW, kNoMark},
    {EMR_PIXELFORMAT, kNoMark},

    // Escapes that return nothing: settings of a driver.
    {EMR_EXTESCAPE, kNoMark},
    {EMR_NAMEDESCAPE, kNoMark},
};

}  // namespace

std::span<const EmfHandler> EmfUnplayedHandlers() {
  return kUnplayedHandlers;
}

}  // namespace kelvane
