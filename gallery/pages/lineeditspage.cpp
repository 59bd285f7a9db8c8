// SPDX-License-Identifier: MIT
#include "gallery/pages/lineeditspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/formground.h"
#include "gallery/widgets/signallog.h"

#include <CachedVectorIcon>
#include <VexoColors>
#include <VexoLineEdit>

using namespace vexo::hox::qt::ui;

namespace {

const QSizeF icon_in_mm(3.5, 3.5);

VexoLineEdit *createField(const QString &text, const QString &placeholder = QString())
{
    auto *field = new VexoLineEdit;
    field->setText(text);
    field->setPlaceholderText(placeholder);
    return field;
}

VexoLineEdit *createSecret(const QString &text, bool centered)
{
    VexoLineEdit *field = createField(text);
    field->setDrawPasswordSecured(true);
    field->setDrawSecuredCentered(centered);
    return field;
}

VexoLineEdit *createUnderscores(const QString &text, bool centered)
{
    VexoLineEdit *field = createField(text);
    field->setUnderscores(6);
    field->setPlaceholderColor(VexoColors::C5);
    field->setDrawCentered(centered);
    field->setCursorState(true);
    return field;
}

VexoLineEdit *createDisabled(const QString &text, bool secret)
{
    VexoLineEdit *field = secret ? createSecret(text, true) : createField(text);
    field->setEnabled(false);
    return field;
}

VexoLineEdit *createWithLeadingIcon(const QString &text)
{
    VexoLineEdit *field = createField(text, "Search");
    field->setPlaceholderColor(VexoColors::C5);
    field->setMmLeadingIconSize(icon_in_mm);
    field->setLeadingIcon(
        CachedVectorIcon(":/widgetimages/RoundButton_S_Tick_Active.svg", QSizeF(0, 3.5)));
    field->setMmLeftOffset(1);
    field->enableLeadingLabelAction();
    return field;
}

VexoLineEdit *createWithTrailingButton(const QString &text)
{
    VexoLineEdit *field = createField(text);
    field->setMmTrailingIconSize(icon_in_mm);
    field->setTrailingIcon(CachedVectorIcon(":/VexoIconGeneralReset", QSizeF(0, 3.5)));
    field->enableTrailingButtonAction();
    QObject::connect(field, &VexoLineEdit::deleteButtonClick, field, [field] {
        field->end(false);
        field->backspace();
    });
    return field;
}

} // namespace

LineEditsPage::LineEditsPage()
    : Page("Line edits",
        "Each field is a VexoLineEdit. It is as high as its radius makes it, draws itself, and "
        "asks "
        "the application for text when it is touched.")
    , m_log(new SignalLog("Touch a field or its delete button."))
{
    addModes();
    addTexts();
    addSection("Signals");
    m_log->setFixedHeight(mmY(25));
    addBlock(m_log);
}

void LineEditsPage::addModes()
{
    addSection("Modes");
    auto *form = new FormGround(2);
    add(form, "Plain", createField("Hannover"));
    add(form, "Plain, empty", createField("", "Town"));
    VexoLineEdit *centered = createField("Hannover");
    centered->setDrawCentered(true);
    add(form, "Centred", centered);
    VexoLineEdit *cursor = createField("Hann");
    cursor->setCursorState(true);
    add(form, "With cursor", cursor);
    add(form, "Secret", createSecret("2026", true));
    add(form, "Secret, from the left", createSecret("2026", false));
    add(form, "Underscores", createUnderscores("20", false));
    add(form, "Underscores, centred", createUnderscores("20", true));
    add(form, "Disabled", createDisabled("Hannover", false));
    add(form, "Disabled and secret", createDisabled("2026", true));
    add(form, "Leading icon", createWithLeadingIcon("Hannover"));
    add(form, "Trailing button", createWithTrailingButton("Hannover"));
    addBlock(form);
}

void LineEditsPage::addTexts()
{
    addSection("Texts");
    auto *form = new FormGround(2);
    add(form, "Right to left", createField(QString::fromUtf8("שלום עולם")));
    add(form, "Marks and pairs", createField(QString::fromUtf8("e\u0301 o\u0308 \U0001F130")));
    add(form, "Chinese", createField(QString::fromUtf8("七英寸触摸屏")));
    add(form, "Too long", createField(QString("Taumatawhakatangihanga").repeated(8)));
    addBlock(form);
}

void LineEditsPage::add(FormGround *form, const QString &caption, Field *field)
{
    form->add(caption, field);
    connect(field, &Field::textEditWanted, m_log, [this, caption](const QString &text) {
        m_log->note(caption, "textEditWanted(\"" + text.left(20) + "\")");
    });
    connect(field, &Field::deleteButtonClick, m_log,
        [this, caption] { m_log->note(caption, "deleteButtonClick()"); });
}
