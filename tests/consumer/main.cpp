// An application of another project: it sees nothing but what is installed.
#include <Tavik/Direction>
#include <Tavik/IconTool>
#include <Tavik/LenConverter>
#include <Tavik/Tavik>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>
#include <Tavik/TypographyTool>

#include <QAccessible>
#include <QApplication>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    LenConverter::initRem();
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->addWidget(new TavikLabel("A label", &window));
    column->addWidget(new TavikButton("A button", TavikButton::Outline, &window));
    auto *palette = new TavikColorWell(&window);
    column->addWidget(palette);
    window.show();
    QCoreApplication::processEvents();

    // Pictures and accessible interfaces are there without a call.
    const bool complete = LenConverter::m_rem > 0 && IconTool::alphaTexture().width() == 16 &&
                          !TypographyTool::defualtFontSz().isEmpty() && Horizontal == 1 &&
                          column->count() == 3 &&
                          QAccessible::queryAccessibleInterface(palette)->childCount() == 16;
    return complete ? 0 : 1;
}
