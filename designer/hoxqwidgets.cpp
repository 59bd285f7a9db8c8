// SPDX-License-Identifier: MIT
#include "designer/hoxqwidgets.h"

#include "designer/formclasses.h"
#include "designer/formplacement.h"
#include "designer/formtext.h"
#include "designer/headercomments.h"
#include "designer/portrait.h"

#include <ScalingInfo>

#include <QScroller>

#include <stdexcept>

using vexo::hox::qt::ui::ScalingInfo;

namespace {

class HoxqWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit HoxqWidget(const FormClass &form_class)
        : m_class(form_class)
    {
    }

    QString name() const override { return QString::fromLatin1(m_class.meta->className()); }
    QString group() const override { return QString::fromLatin1(m_class.group); }
    QString toolTip() const override;
    QString whatsThis() const override { return asRichText(headerComment(m_class.name())); }
    QString includeFile() const override;
    QIcon icon() const override { return portrait(m_class); }
    bool isContainer() const override { return m_class.isScrollArea() || m_class.placesChildren(); }
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override { return ::domXml(m_class); }

private:
    const FormClass &m_class;
};

QString HoxqWidget::toolTip() const
{
    const QString comment = headerComment(m_class.name());
    return asRichText(comment.left(comment.indexOf(QStringLiteral(". ")) + 1));
}

QString HoxqWidget::includeFile() const
{
    return QStringLiteral("<%1>").arg(QString::fromLatin1(m_class.name()));
}

QWidget *HoxqWidget::createWidget(QWidget *parent)
{
    if (!isInForm(parent))
        return m_class.make(parent);
    QWidget *widget = m_class.makeGuarded(parent);
    if (m_class.placesChildren())
        new FormPlacement(widget);
    if (m_class.isScrollArea()) // the mouse is Designer's
        QScroller::ungrabGesture(widget);
    return widget;
}

} // namespace

HoxqWidgets::HoxqWidgets(QObject *parent)
    : QObject(parent)
{
    for (const FormClass &form_class : formClasses())
        m_widgets.push_back(std::make_unique<HoxqWidget>(form_class));
}

QList<QDesignerCustomWidgetInterface *> HoxqWidgets::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    try {
        ScalingInfo::inst();
    } catch (const std::range_error &) {
        return widgets; // on a screen of unknown size none can be made
    }
    for (const auto &widget : m_widgets)
        widgets += widget.get();
    return widgets;
}
