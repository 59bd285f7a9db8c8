#pragma once
// SPDX-License-Identifier: MIT

#include <QMetaObject>
#include <QSizeF>
#include <QWidget>
#include <QtDebug>

#include <exception>

/// A class that forms can hold: the line of the table formClasses().
struct FormClass
{
    const QMetaObject *meta;
    QWidget *(*make)(QWidget *parent);
    QWidget *(*makeGuarded)(QWidget *parent);
    const char *group; ///< in the widget box
    QSizeF mm; ///< first size in a form; where it is 0, that which the widget asks for
    const char *first; ///< first properties in a form, "text=OK; m_underscores=4"
    double side_mm; ///< of the square that its icon shows
    const char *pose; ///< further properties for the icon
    void (*dress)(QWidget *widget); ///< for the icon, what is no property; may be null
    const char *content; ///< class of what it holds from the start; may be null

    QByteArray name() const; ///< VexoLabel
    QByteArray toolkitBase() const; ///< QLabel
    bool isScrollArea() const;
    bool placesChildren() const; ///< through addFromForm()
};

/// Keeps an error of the user, a negative size say, from ending Designer: the property stays as it
/// was.
template <typename Widget>
class Guarded : public Widget
{
public:
    using Widget::Widget;

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        try {
            return Widget::qt_metacall(call, id, arguments);
        } catch (const std::exception &error) {
            qWarning("%s: %s", this->metaObject()->className(), error.what());
            return -1;
        }
    }
};

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

/// \a Made is what stands for \a Widget in forms that are not compiled.
template <typename Widget, typename Made = Widget>
FormClass formClass(const char *group, const QSizeF &mm, const char *first, double side_mm,
    const char *pose, void (*dress)(QWidget *widget) = nullptr, const char *content = nullptr)
{
    return { &Widget::staticMetaObject, make<Made>, make<Guarded<Made>>, group, mm, first, side_mm,
        pose, dress, content };
}
