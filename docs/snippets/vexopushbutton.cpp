// SPDX-License-Identifier: MIT
//! [page]
#include <VexoPushButton>

#include <QApplication>
#include <QDebug>

#include <stdexcept>

using namespace vexo::hox::qt::ui;

// A button with an image for each state, at the left of its label.
VexoPushButton *createSaveButton(QWidget *parent)
{
    auto *button = new VexoPushButton(parent);
    button->setText("Save");
    button->setSvgImage(":/widgetimages/RoundButton_S_Tick_Active.svg",
        ":/widgetimages/RoundButton_S_Tick_Pressed.svg",
        ":/widgetimages/RoundButton_S_Tick_Inactive.svg");
    return button;
}

// Where the images come from elsewhere, Standard may be missing: the paint of such a button throws.
// In this application it stays blank, and the log names it.
class PanelApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::logic_error &error) {
            qWarning() << receiver << error.what();
            return false;
        }
    }
};
//! [page]
