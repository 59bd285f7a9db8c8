// SPDX-License-Identifier: MIT
#include "contactsscreen.h"

#include <CachedVectorIcon>
#include <OnScreenKeyboard>
#include <PanelDialog>
#include <RowList>
#include <VexoHorizontalTextIconButton>
#include <VexoLineEdit>
#include <VexoPushButton>
#include <VexoVerticalButtonScrollArea>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const double bar_in_mm = 10;

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
    m_search->setFixedWidth(mmX(60));
    m_search->setMmMargin(QSizeF(1, 1));
    m_search->setMmRadius(3.6);
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
        m_keyboard->setBackgroundColor(look().line);
        m_nobody->setText(tr("Nobody has this name."));
    });
}

void ContactsScreen::setUpList()
{
    m_nobody->setContentsMargins(mmX(3), mmY(3), mmX(3), mmY(3));
    m_nobody->hide();
    m_list->setRowFactory([this](int) {
        VexoHorizontalTextIconButton *row = createRow(); // without its arrow, as the list has none
        row->setLeftSideTextPercentWidth(84);
        row->setRightSideTextPercentWidth(16);
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
    const QList<QPushButton *> buttons = m_bar->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setFixedSize(mmSize(bar_in_mm, 9)); // 60 x 60 px are another size on each panel
    m_bar->setFixedWidth(mmX(bar_in_mm));
    m_list->connectJumpBar(m_bar);
    follow([this] { dressBar(); });
}

void ContactsScreen::dressBar()
{
    setGround(m_bar, look().line);
    const QString sheet = "QPushButton { background: %1; color: %2; border: none; font-size: %3px; "
                          "icon-size: %4px; }"
                          "QPushButton:pressed { background: %5; }";
    m_bar->setStyleSheet(sheet.arg(look().line.name(), look().ink.name())
                             .arg(ptFont(9).pixelSize())
                             .arg(mmX(5))
                             .arg(look().surface.name()));
    m_bar->setUpIcon(CachedVectorIcon(look().icon("up"), QSizeF(5, 5)).toPixmap());
    m_bar->setDownIcon(CachedVectorIcon(look().icon("down"), QSizeF(5, 5)).toPixmap());
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
    question->addButton(tr("Call"));
    connect(question, &PanelDialog::answered, this, [this, name](int button) {
        if (button == 1)
            panel()->tell(tr("Calling %1 ...").arg(name));
    });
    question->open();
}
