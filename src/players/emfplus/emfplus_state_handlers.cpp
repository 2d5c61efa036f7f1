#include "gdiplus/transforms.h"
#include "metafile/emfplus/emfplus_state_records.h"
#include "players/emfplus/emfplus_handler.h"

namespace kelvane {
namespace {

gdiplus::MatrixOrder OrderOf(bool isAppended) {
  return isAppended ? gdiplus::MatrixOrder::kAppend : gdiplus::MatrixOrder::kPrepend;
}

// Smoothing and the quality of text and colours are up to whoever shows the page.
constexpr EmfPlusHandler kStateRows[] = {
    {kEmfPlusSetRenderingOrigin,
     PlayingEmfPlus<DecodeEmfPlusSetRenderingOrigin>(
         [](EmfPlusPlayback& p, const auto& r) { p.graphics.state.renderingOrigin = r.origin; })},
    {kEmfPlusSetAntiAliasMode, kPassEmfPlusOver},
    {kEmfPlusSetTextRenderingHint, kPassEmfPlusOver},
    {kEmfPlusSetTextContrast, kPassEmfPlusOver},
    {kEmfPlusSetInterpolationMode,
     PlayingEmfPlus<DecodeEmfPlusSetInterpolationMode>(
         [](EmfPlusPlayback& p, const auto& r) { p.graphics.state.interpolation = r.mode; })},
    {kEmfPlusSetPixelOffsetMode,
     PlayingEmfPlus<DecodeEmfPlusSetPixelOffsetMode>(
         [](EmfPlusPlayback& p, const auto& r) { p.graphics.state.pixelOffset = r.mode; })},
    {kEmfPlusSetCompositingMode,
     PlayingEmfPlus<DecodeEmfPlusSetCompositingMode>(
         [](EmfPlusPlayback& p, const auto& r) { p.graphics.state.compositing = r.mode; })},
    {kEmfPlusSetCompositingQuality, kPassEmfPlusOver},
    {kEmfPlusSave, PlayingEmfPlus<DecodeEmfPlusStackEntry>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::Save(p.graphics, r.label);
     })},
    {kEmfPlusRestore,
     PlayingEmfPlus<DecodeEmfPlusStackEntry>(
         [](EmfPlusPlayback& p, const auto& r) { gdiplus::Restore(p.graphics, r.label); })},
    {kEmfPlusBeginContainer,
     PlayingEmfPlus<DecodeEmfPlusBeginContainer>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::BeginContainer(p.graphics, r.destination, r.source, r.unit, r.label);
     })},
    {kEmfPlusBeginContainerNoParams,
     PlayingEmfPlus<DecodeEmfPlusStackEntry>(
         [](EmfPlusPlayback& p, const auto& r) { gdiplus::BeginContainer(p.graphics, r.label); })},
    {kEmfPlusEndContainer,
     PlayingEmfPlus<DecodeEmfPlusStackEntry>(
         [](EmfPlusPlayback& p, const auto& r) { gdiplus::EndContainer(p.graphics, r.label); })},
    {kEmfPlusSetWorldTransform,
     PlayingEmfPlus<DecodeEmfPlusSetWorldTransform>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::SetWorldTransform(p.graphics, r.matrix);
     })},
    {kEmfPlusResetWorldTransform,
     CallingEmfPlus([](gdiplus::Graphics& g) { gdiplus::ResetWorldTransform(g); })},
    {kEmfPlusMultiplyWorldTransform,
     PlayingEmfPlus<DecodeEmfPlusMultiplyWorldTransform>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::MultiplyWorldTransform(p.graphics, r.matrix, OrderOf(r.isAppended));
     })},
    {kEmfPlusTranslateWorldTransform,
     PlayingEmfPlus<DecodeEmfPlusTranslateWorldTransform>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::TranslateWorldTransform(p.graphics, r.x, r.y, OrderOf(r.isAppended));
     })},
    {kEmfPlusScaleWorldTransform,
     PlayingEmfPlus<DecodeEmfPlusScaleWorldTransform>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::ScaleWorldTransform(p.graphics, r.x, r.y, OrderOf(r.isAppended));
     })},
    {kEmfPlusRotateWorldTransform,
     PlayingEmfPlus<DecodeEmfPlusRotateWorldTransform>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::RotateWorldTransform(p.graphics, r.degrees, OrderOf(r.isAppended));
     })},
    {kEmfPlusSetPageTransform,
     PlayingEmfPlus<DecodeEmfPlusSetPageTransform>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::SetPageTransform(p.graphics, r.unit, r.scale);
     })},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusStateHandlers() {
  return kStateRows;
}

}  // namespace kelvane
