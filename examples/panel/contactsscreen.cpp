// SPDX-License-Identifier: MIT
#include "contactsscreen.h"

#include <CachedVectorIcon>
#include <OnScreenKeyboard>
#include <PanelDialog>
#include <RowList>
#include <ScalingInfo>
#include <VexoHorizontalTextIconButton>
#include <VexoLineEdit>
#include <VexoPushButton>
#include <VexoVerticalButtonScrollArea>

#include <QHBoxLayout>
#include <QLabel>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const QSizeF letter_in_mm(10, 9);
const double search_in_mm = 60;
const double number_in_mm = 11.5; // with the space around it

using Bar = VexoVerticalButtonScrollArea;

} // namespace

ContactsScreen::ContactsScreen(PanelWindow *panel)
    : Screen(panel)
    , m_search(new VexoLineEdit)
    , m_list(new RowList)
    , m_bar(new Bar)
    , m_nobody(createText(9))
    , m_keyboard(new OnScreenKeyboard)
{
    m_found.setSourceModel(&m_contacts);
    m_found.setFilterCaseSensitivity(Qt::CaseInsensitive);
    addHead([] { return tr("Contacts"); })->addWidget(m_search);
    column()->addWidget(m_nobody);
    auto *row = new QHBoxLayout;
    row->addWidget(m_list, 1);
    row->addWidget(m_bar);
    column()->addLayout(row, 1);
    column()->addWidget(m_keyboard);
    setUpSearch();
    setUpList();
    setUpBar();
    setSearching(false);
}

void ContactsScreen::setUpSearch()
{
    const double half_in_mm = ScalingInfo::inst()->m_size_mm.width() / 2;
    m_search->setFixedWidth(mmX(qMin(search_in_mm, half_in_mm)));
    m_search->setMmMargin(QSizeF(1, 0));
    m_search->setMmRadius(4.5);
    m_search->setMmLeftOffset(1);
    m_search->enableLeadingLabelAction();
    m_keyboard->setReceiver(m_search);
    m_keyboard->setHasHideKey(true);
    connect(m_search, &VexoLineEdit::textEditWanted, this, [this] { setSearching(true); });
    connect(m_search, &VexoLineEdit::textChanged, this, &ContactsScreen::find);
    connect(m_search, &VexoLineEdit::returnPressed, this, [this] { setSearching(false); });
    connect(m_keyboard, &OnScreenKeyboard::hideRequested, this, [this] { setSearching(false); });
    follow([this] {
        m_search->setPlaceholderText(m_search->text().isEmpty() ? tr("Search") : QString());
        m_search->setAccessibleName(tr("Search"));
        m_search->setLeadingIcon(CachedVectorIcon(look().icon("search"), QSizeF(5, 5)).toPixmap());
        m_search->setPlaceholderColor(look().faint);
        m_search->setBackgroundColor(look().ground);
        m_search->setTextColor(look().ink);
        m_search->setCursorColor(look().ink);
        const QString &language = panel()->language();
        m_keyboard->setLanguages({ language, language == "de" ? "en" : "de" });
        m_keyboard->setDark(panel()->isNight());
        m_nobody->setText(tr("Nobody has this name."));
    });
}

void ContactsScreen::setUpList()
{
    m_nobody->setContentsMargins(mmX(3), mmY(3), mmX(3), mmY(3));
    m_nobody->hide();
    m_list->setRowFactory([this](int) {
        VexoHorizontalTextIconButton *row = createRow(); // without its arrow, as the list has none
        const double row_in_mm = ScalingInfo::inst()->m_size_mm.width() - letter_in_mm.width();
        row->setLeftSideTextPercentWidth(100 - 100 * number_in_mm / row_in_mm);
        row->setRightSideTextPercentWidth(100 * number_in_mm / row_in_mm);
        panel()->follow(row, [=] { dress(row, look()); });
        return row;
    });
    m_list->setRowBinder([this](QWidget *widget, const QModelIndex &person) {
        auto *row = qobject_cast<VexoHorizontalTextIconButton *>(widget);
        row->setLeftSideText(person.data().toString());
        row->setRightSideText(person.data(RowList::SecondTextRole).toString());
    });
    m_list->setSeparatorFactory([this] { return createLine(); });
    m_list->setModel(&m_found);
    connect(m_list, &RowList::clicked, this, &ContactsScreen::call);
}

void ContactsScreen::setUpBar()
{
    m_bar->setMmButtonSize(letter_in_mm);
    m_list->connectJumpBar(m_bar);
    follow([this] { dressBar(); });
}

void ContactsScreen::dressBar()
{
    setGround(m_bar, look().line);
    const QString sheet = "QPushButton { background: %1; color: %2; border: none; font-size: %3px; "
                          "font-weight: %4; }"
                          "QPushButton:pressed { background: %5; }";
    m_bar->setStyleSheet(
        sheet.arg(look().line.name(), look().ink.name())
            .arg(ptFont(9).pixelSize())
            .arg(8 * QFont::Medium) // what the toolkit makes of a weight in a sheet
            .arg(look().surface.name()));
    const QSizeF icon_in_mm(letter_in_mm.height() / 2, letter_in_mm.height() / 2);
    m_bar->setUpIcon(CachedVectorIcon(look().icon("up"), icon_in_mm).toPixmap());
    m_bar->setDownIcon(CachedVectorIcon(look().icon("down"), icon_in_mm).toPixmap());
}

void ContactsScreen::setSearching(bool is_searching)
{
    m_search->setCursorState(is_searching);
    m_search->setBorderColor(is_searching ? look().ink : look().faint);
    m_keyboard->setVisible(is_searching);
    m_bar->setVisible(!is_searching);
}

void ContactsScreen::find(const QString &text)
{
    m_search->setPlaceholderText(text.isEmpty() ? tr("Search") : QString());
    m_found.setFilterFixedString(text.trimmed());
    m_nobody->setVisible(m_found.rowCount() == 0);
}

void ContactsScreen::call(const QModelIndex &person)
{
    setSearching(false);
    const QString name = person.data().toString();
    PanelDialog *question = panel()->ask(tr("Call %1?").arg(name));
    question->setExplanation(
        tr("Telephone %1").arg(person.data(RowList::SecondTextRole).toString()));
    question->addButton(tr("Cancel"));
    panel()->addMainButton(question, tr("Call"));
    connect(question, &PanelDialog::answered, this, [this, name](int button) {
        if (button == 1)
            panel()->tell(tr("Calling %1 ...").arg(name));
    });
    question->open();
}
