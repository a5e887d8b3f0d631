#ifndef TAVIK_TAVIKKEYBOARDACCESS_H
#define TAVIK_TAVIKKEYBOARDACCESS_H

#include <Tavik/tavik_export.h>

class QWidget;

/// Lets the keyboard do what the mouse does, in the controls that have no keys of their own.
///
/// \code
/// TavikKeyboardAccess::install(&window);   // with all popups that are its children
/// TavikKeyboardAccess::install(popup);     // or a popup alone, with the samplers that it opens
/// \endcode
///
/// | Where | Keys |
/// |-------|------|
/// | Saturation/value square | Arrows 1 %, and at least one pixel; with Shift one pixel. Page Up and Page Down 10 % of the value, with Ctrl of the saturation. Home and End: least and most saturation, with Ctrl value. |
/// | Palette | Arrows, Home and End move among the cells; Space or Return chooses. The add button is the last cell. |
/// | Gradient bar | Tab moves among its squares and handles. On a handle: arrows 1, Page Up and Page Down 10, Home and End. Space or Return on a square asks for a popup. |
/// | Expandable panel | Space or Return on its title opens and closes it. |
/// | Screen sampler | Arrows one pixel, Page Up, Page Down and arrows with Shift ten; Return or Space picks, Escape leaves. |
///
/// A popup begins with its square, and Tab goes through it from top to bottom. The content of a closed panel
/// is hidden, so that Tab passes by it. While keys are used, a frame stands around whatever has the focus,
/// unless that shows a text cursor or is a combo box. Where the platform doesn't let an application move the
/// pointer, the sampler's frame moves without it.
///
/// Without a call of install() all controls keep the keys that the toolkit gives them.
class TAVIK_EXPORT TavikKeyboardAccess
{
public:
    /// Gives keys to a widget and to all its children, those of later included, as long as it lives. A
    /// second call for it, or one for a widget inside, changes nothing, and neither does nullptr.
    static void install(QWidget *root);
};

#endif
