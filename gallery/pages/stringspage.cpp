// SPDX-License-Identifier: MIT
#include "gallery/pages/stringspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/fieldentry.h"
#include "gallery/widgets/formground.h"

#include <OnScreenKeyboard>
#include <StringUtil>
#include <VexoColors>
#include <VexoLineEdit>

#include <QLabel>

#include <stdexcept>

using namespace vexo::hox::qt::ui;
using vexo::util::StringUtil;

namespace {

const int most_characters = 16; // of ASCII have room on two lines

std::string textOf(const std::vector<unsigned char> &bytes)
{
    return std::string(bytes.begin(), bytes.end());
}

std::string toHex(const std::string &text)
{
    return StringUtil::ToHex(std::vector<unsigned char>(text.begin(), text.end()));
}

std::string toBase64(const std::string &text)
{
    return StringUtil::ToBase64(text);
}

std::string split(const std::string &text)
{
    std::string pieces;
    for (const std::string &piece : StringUtil::Split(text, " ", false))
        pieces += (pieces.empty() ? "" : " | ") + piece;
    return pieces;
}

std::string fromHex(const std::string &text)
{
    return textOf(StringUtil::FromHex(text));
}

std::string fromBase64(const std::string &text)
{
    return textOf(StringUtil::FromBase64(text));
}

// A label breaks lines between words only.
QString breakable(const std::string &text)
{
    const QString characters = QString::fromStdString(text);
    QString result;
    for (const QChar character : characters) {
        result += character;
        if (!character.isHighSurrogate())
            result += QChar(0x200b); // a space without width
    }
    return result;
}

void showResult(QLabel *label, const QString &text, const QColor &color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    label->setText(text);
}

} // namespace

StringsPage::StringsPage()
    : Page("Strings", "Type a text, or the hexadecimal digits or the Base64 of one. Enter clears.")
    , m_field(new VexoLineEdit)
{
    m_field->setObjectName("stringField");
    m_field->setMaxLength(most_characters);
    m_field->setInputMethodHints(Qt::ImhNoAutoUppercase);
    auto *keyboard = new vexo::hox::qt::panel::OnScreenKeyboard;
    keyboard->setLanguages({ "de", "en" });
    addBlock(createForm());
    addBlock(keyboard);
    addSection("Decoded");
    auto *decoded = new FormGround(2);
    addResult(decoded, "Read as hexadecimal", "fromHexResult", fromHex);
    addResult(decoded, "Read as Base64", "fromBase64Result", fromBase64);
    addBlock(decoded);

    auto *entry = new FieldEntry(keyboard);
    entry->add(m_field);
    connect(entry, &FieldEntry::entered, m_field, &VexoLineEdit::clear);
    m_field->setText(QString::fromUtf8("Grüße 2026"));
}

FormGround *StringsPage::createForm()
{
    auto *form = new FormGround(3);
    form->add("Text", m_field);
    for (QLabel *label : { addResult(form, "Hexadecimal", "hexResult", toHex),
             addResult(form, "Base64", "base64Result", toBase64) })
        label->setMinimumHeight(qMax(m_field->height(), 2 * label->fontMetrics().lineSpacing()));
    addResult(form, "Lower case", "lowerResult", StringUtil::ToLower);
    addResult(form, "Upper case", "upperResult", StringUtil::ToUpper);
    addResult(form, "Split at blanks", "splitResult", split);
    return form;
}

QLabel *StringsPage::addResult(
    FormGround *form, const QString &caption, const char *name, Convert convert)
{
    QLabel *label = createText("");
    label->setObjectName(name);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->add(caption, label);
    connect(m_field, &VexoLineEdit::textChanged, label, [=](const QString &text) {
        try {
            showResult(label, breakable(convert(text.toStdString())), VexoColors::C3);
        } catch (const std::exception &error) {
            showResult(label, error.what(), VexoColors::C9);
        }
    });
    return label;
}
