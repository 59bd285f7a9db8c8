#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

class QSize;
class QWidget;
struct FormClass;

/// What Designer puts into a form when the class is dropped there, and what it has to know about
/// the class.
QString domXml(const FormClass &form_class);

/// The size of a new widget in a form, px; the widget's own where the class does not say one.
QSize firstSize(const FormClass &form_class);

/// Sets what \a text lists, "text=OK; m_underscores=4".
void setProperties(QWidget *widget, const char *text);
