#pragma once

#include <functional>

class QLabel;
class QLineEdit;
class QPainter;
class QPushButton;
class QRect;
class QString;
class QTimer;
class QToolButton;
class QWidget;

namespace vexo::hox::qt::ui {
class ActiveButton;
class ActiveVectorButton;
class MeasuredPushButton;
class VexoDesignVectorButton;
class VexoFeedbackDelegator;
class VexoIconButton;
class VexoKeyboardButton;
} // namespace vexo::hox::qt::ui

// The snippets of docs/snippets, as the pages show them. The caller owns what is created.
vexo::hox::qt::ui::ActiveButton *createAlarm(const QTimer *beat);
vexo::hox::qt::ui::ActiveVectorButton *createChoice(QWidget *parent);
QToolButton *createEnterButton(QWidget *parent);
QPushButton *createStopButton();
void useFonts();
void makeHeading(QLabel *label);
vexo::hox::qt::ui::MeasuredPushButton *createBackButton(QLabel *screen);
void describePanel();
void sizeField(QWidget *field);
void drawLamp(QPainter *painter, const QRect &lamp, bool is_lit);
vexo::hox::qt::ui::VexoDesignVectorButton *createLightTile(QWidget *parent);
vexo::hox::qt::ui::VexoFeedbackDelegator *installTone(const std::function<void()> &play);
vexo::hox::qt::ui::VexoIconButton *createMenuButton(QWidget *parent);
vexo::hox::qt::ui::VexoKeyboardButton *createDeleteKey(QLineEdit *line);
vexo::hox::qt::ui::VexoKeyboardButton *createLetterKey(const QString &letter, QLineEdit *line);
void startPump(int rpm);
void useStylesheets(const QString &own_file);
