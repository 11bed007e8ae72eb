/*
 * Texts of the active frame. A text has a handle above 0 that no other object of the process has; it keeps it through
 * undo and redo. Every change sends `StateChange_Text` with the handle as its object.
 */
#ifndef VTX_UTIL_TEXT_H
#define VTX_UTIL_TEXT_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/*
 * Creates a text, or changes an existing one:
 *   "TextID"                long    the text to change; left out, a text is created
 *   "Result"                long*   receives the handle (optional)
 *   "Text"                  string  what it says; needed for a new text, not empty
 *   "XPos" "YPos" "ZPos"    double  the anchor's place in the units of "PositionCoordSys"
 *   "PositionCoordSys"      long    a CoordSys_e
 *   "FontFamily"            string
 *   "SizeUnits"             long    a Units_e
 *   "Height"                double  of a capital letter, in those units, above 0
 *   "MacroFunctionCommand"  string  run when the text is clicked with Ctrl; may be empty
 *   "TextColor"             long    a colour index
 *   "IsBold" "IsItalic"     long
 *   "Angle"                 double  degrees, against the clock
 *   "LineSpacing"           double  of lines over their height, above 0
 *   "Anchor"                long    a TextAnchor_e
 *   "TextType"              long    a TextType_e
 *   "BoxType"               long    a TextBox_e
 *   "LineThickness"         double  of the box, % of the frame's height, above 0
 *   "Color"                 long    of the box' line
 *   "FillColor"             long    of the box
 *   "Margin"                double  between text and box, % of the text's height, not below 0
 * A LaTeX text is set by the programs `latex` and `dvipng`; where they fail it is shown as it stands and the status
 * line tells why. "Text" with the words that a LaTeX text has already sets it anew. What is left out keeps its value,
 * or of a new text its default. An error names the value; nothing is changed then.
 */
bool VtxUtilTextSetX(VtxArgListHandle arguments);

/* Reads a text: the same names, each with a pointer argument ("XPos" a double*, "Text" a char**, ...). */
bool VtxUtilTextGetX(VtxArgListHandle arguments);

bool VtxUtilTextSetHeight(long text, double height);
bool VtxUtilTextDelete(long text);
bool VtxUtilTextIsValid(long text);

/* The texts of the active frame: the first, and the one that is drawn after another; 0 where there is none. */
long VtxUtilTextGetFirst(void);
long VtxUtilTextGetNext(long text);

VTX_END_DECLS

#endif
