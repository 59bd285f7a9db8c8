#pragma once
// SPDX-License-Identifier: MIT

class QWidget;

/// How a widget is dressed for its icon in Designer, as far as that is not a matter of its
/// properties. Each takes a widget of the class in whose line of the table it stands, on a parent
/// that is the ground of the icon.
void dressAsItem(QWidget *enumeration);
void dressInLargeLetters(QWidget *bar);
void dressInSheet(QWidget *widget);
void dressOnDarkGround(QWidget *widget);
void dressOnPicture(QWidget *widget);
void dressTightly(QWidget *push_button);
void dressWidely(QWidget *widget);
void dressWithArrow(QWidget *row);
void dressWithField(QWidget *container);
void dressWithInfo(QWidget *headline);
void dressWithList(QWidget *area);
void dressWithMenu(QWidget *button);
void dressWithModel(QWidget *list);
void dressWithPages(QWidget *stack);
void dressWithPicture(QWidget *panning);
void dressWithPlus(QWidget *button);
void dressWithReset(QWidget *button);
void dressWithRows(QWidget *content);
void dressWithSlider(QWidget *decoration);
void dressWithTick(QWidget *button);
