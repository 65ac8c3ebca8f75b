#include "resources/drawing/Pictures.h"

#include <array>

#include "resources/drawing/Symbols.h"
#include "resources/drawing/Tester.h"

namespace draw {
namespace {

using namespace colours;

// The test pictures read from left to right: the source of the current, the current, its sink;
// or what is measured and its unit.

Canvas Wide(Colour ground) { return {32, 16, ground}; }
Canvas Small(Colour ground) { return {16, 16, ground}; }

Canvas MainsVoltage() {
  Canvas canvas = Wide(kButtonGrey);
  MainsSource(canvas, 1, 0);
  LetterV(canvas, 19, 3, kInk);
  return canvas;
}

Canvas ProtectiveEarthResistance(Colour ground) {
  Canvas canvas = Wide(ground);
  ProtectiveEarth(canvas, 0, 0);
  LetterOmega(canvas, 19, 2, kInk);
  return canvas;
}

Canvas EarthLeakage() {
  Canvas canvas = Wide(kButtonGrey);
  Equipment(canvas, 0, 2);
  ArrowRight(canvas, 11, 4, 8, kCurrent);
  Earth(canvas, 20, 1);
  return canvas;
}

Canvas EnclosureLeakage() {
  Canvas canvas = Wide(kButtonGrey);
  Equipment(canvas, 0, 2);
  ArrowRight(canvas, 11, 4, 11, kCurrent);
  Person(canvas, 23, 0);
  return canvas;
}

Canvas PatientLeakage(Colour ground) {
  Canvas canvas = Wide(ground);
  Person(canvas, 0, 0);
  ArrowRight(canvas, 10, 4, 9, kCurrent);
  Earth(canvas, 20, 1);
  return canvas;
}

Canvas AppliedPartLeakage() {
  Canvas canvas = Wide(kButtonGrey);
  MainsSource(canvas, 0, 0);
  ArrowRight(canvas, 14, 4, 8, kCurrent);
  Person(canvas, 23, 0);
  return canvas;
}

Canvas PatientAuxiliaryCurrent() {
  Canvas canvas = Wide(kButtonGrey);
  ArrowRight(canvas, 0, 4, 11, kCurrent);
  Person(canvas, 12, 0);
  ArrowRight(canvas, 22, 4, 10, kCurrent);
  return canvas;
}

Canvas InsulationResistance() {
  Canvas canvas = Wide(kButtonGrey);
  Insulation(canvas, 1, 1);
  MegOhm(canvas, 15, 3, kInk);
  return canvas;
}

Canvas Sequence(Colour ground) {
  Canvas canvas = Wide(ground);
  Sheet(canvas, 0, 1);
  ArrowRight(canvas, 12, 4, 8, kInk);
  Sheet(canvas, 21, 1);
  return canvas;
}

Canvas Group(Colour ground) {
  Canvas canvas = Small(ground);
  Folder(canvas, 0, 1);
  return canvas;
}

Canvas Item(Colour ground) {
  Canvas canvas = Small(ground);
  Sheet(canvas, 2, 1);
  return canvas;
}

constexpr std::array<Picture, 19> kPictures = {{
    {"KELD_16X16.bmp", Depth::kPalette8, SmallTester},
    {"KELD_32X32.bmp", Depth::kPalette8, LargeTester},
    {"TE_SEQ_32X16.bmp", Depth::kPalette8, [] { return Sequence(kButtonGrey); }},
    {"TE_SEQ_32X16_WHT.bmp", Depth::kPalette8, [] { return Sequence(kWhite); }},
    {"TE_GROUP_16X16.bmp", Depth::kPalette8, [] { return Group(kButtonGrey); }},
    {"TE_GROUP_16X16_WHT.bmp", Depth::kPalette8, [] { return Group(kWhite); }},
    {"TE_ITEM_16X16.bmp", Depth::kPalette8, [] { return Item(kButtonGrey); }},
    {"TE_ITEM_16X16_WHT.bmp", Depth::kPalette8, [] { return Item(kWhite); }},
    {"TE_MV_32X16.bmp", Depth::kPalette8, MainsVoltage},
    {"TE_PE_32X16.bmp", Depth::kPalette8, [] { return ProtectiveEarthResistance(kButtonGrey); }},
    {"TE_PE_32X16_WHT.bmp", Depth::kPalette8, [] { return ProtectiveEarthResistance(kWhite); }},
    {"TE_ELC_32X16.bmp", Depth::kPalette8, EarthLeakage},
    {"TE_ENC_32X16.bmp", Depth::kPalette8, EnclosureLeakage},
    {"TE_ALC_32X16.bmp", Depth::kPalette8, AppliedPartLeakage},
    {"TE_CUR_32X16.bmp", Depth::kPalette8, PatientAuxiliaryCurrent},
    {"TE_PLC_32X16.bmp", Depth::kPalette8, [] { return PatientLeakage(kButtonGrey); }},
    {"TE_PLC_32X16_WHT.bmp", Depth::kPalette8, [] { return PatientLeakage(kWhite); }},
    {"TE_ISO_32X16.bmp", Depth::kPalette8, InsulationResistance},
    {"TAB_MTIDATA.bmp", Depth::kTrue24, TesterTab},
}};

}  // namespace

std::span<const Picture> Pictures() { return kPictures; }

}  // namespace draw
