#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

/// Of records that leave no mark on a page.
constexpr PlayWmfRecord kNoWmfMark = [](WmfPlayback&, ByteView&) {};

/// Of records that Windows never writes, whose objects have indexes all the same.
constexpr PlayWmfRecord kOnlyAnIndex = [](WmfPlayback& p, ByteView&) {
  p.slots.Take();
  p.LeftOut("an object of its kind cannot be selected");
};

constexpr WmfHandler kWmfUnplayedRows[] = {
    {META_EOF, kNoWmfMark},

    // How fonts are chosen on the recorder's machine; what has no meaning any more.
    {META_SETMAPPERFLAGS, kNoWmfMark},
    {META_SETRELABS, kNoWmfMark},

    // A page has the colours that the records name.
    {META_REALIZEPALETTE, kNoWmfMark},

    {META_CREATEBRUSH, kOnlyAnIndex},
    {META_CREATEBITMAPINDIRECT, kOnlyAnIndex},
    {META_CREATEBITMAP, kOnlyAnIndex},

    // Left there by programs that printed.
    {META_RESETDC, kNoWmfMark},
    {META_STARTDOC, kNoWmfMark},
    {META_STARTPAGE, kNoWmfMark},
    {META_ENDPAGE, kNoWmfMark},
    {META_ABORTDOC, kNoWmfMark},
    {META_ENDDOC, kNoWmfMark},
    {META_DRAWTEXT, [](WmfPlayback& p, ByteView&) { p.LeftOut("its text has no known layout"); }},
};

}  // namespace

std::span<const WmfHandler> WmfUnplayedHandlers() {
  return kWmfUnplayedRows;
}

}  // namespace kelvane
