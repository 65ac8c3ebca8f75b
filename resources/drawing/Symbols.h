#pragma once

#include "resources/drawing/Canvas.h"

namespace draw {

/// The colours of all pictures. Each thing has one colour in every picture that shows it.
namespace colours {
inline constexpr Colour kButtonGrey{192, 192,
                                    192};         ///< ground of the plain pictures: the classic button face
inline constexpr Colour kWhite{255, 255, 255};    ///< ground of the second forms
inline constexpr Colour kInk{24, 28, 36};         ///< outlines and letters
inline constexpr Colour kEarth{0, 104, 52};       ///< protective earth, and ground as the sink of a current
inline constexpr Colour kCurrent{206, 18, 30};    ///< the current that a test measures
inline constexpr Colour kEquipment{28, 78, 152};  ///< the equipment under test, and the tester
inline constexpr Colour kEquipmentFace{206, 224, 246};
inline constexpr Colour kPerson{44, 44, 120};   ///< the patient or a person touching the equipment
inline constexpr Colour kMains{196, 84, 0};     ///< mains voltage
inline constexpr Colour kSheet{255, 252, 236};  ///< paper
inline constexpr Colour kFolder{244, 196, 84};  ///< a group's folder
inline constexpr Colour kFolderEdge{132, 88, 8};
}  // namespace colours

// Each symbol is painted with the upper left corner of its box at (x, y); each comment gives the size of its
// box.

/// Earth, after the sign of the field: a stem and three bars that get shorter. 12 by 14.
void Earth(Canvas& canvas, int x, int y);
/// Protective earth: the earth sign in a circle. 16 by 16.
void ProtectiveEarth(Canvas& canvas, int x, int y);
/// A standing person. 9 by 16.
void Person(Canvas& canvas, int x, int y);
/// A piece of mains-powered equipment: a housing with a screen. 11 by 12.
void Equipment(Canvas& canvas, int x, int y);
/// A line of measured values: a level with a swing up and down. 7 by 6.
void Trace(Canvas& canvas, int x, int y, Colour colour);
/// An arrow to the right, 8 high, its point at x + `length`.
void ArrowRight(Canvas& canvas, int x, int y, int length, Colour colour);
/// One period of a sine wave in a circle: an alternating voltage source. 15 by 15.
void MainsSource(Canvas& canvas, int x, int y);
/// The letter V. 11 by 11.
void LetterV(Canvas& canvas, int x, int y, Colour colour);
/// The letter omega. 12 by 12.
void LetterOmega(Canvas& canvas, int x, int y, Colour colour);
/// The letters M and omega, for megohms. 16 by 10.
void MegOhm(Canvas& canvas, int x, int y, Colour colour);
/// Two conductors held apart by an insulating layer. 12 by 14.
void Insulation(Canvas& canvas, int x, int y);
/// A sheet with a line of measured values: one test. 11 by 13.
void Sheet(Canvas& canvas, int x, int y);
/// An open folder with a sheet in it: a group of tests. 15 by 14.
void Folder(Canvas& canvas, int x, int y);

}  // namespace draw
