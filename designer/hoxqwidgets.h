#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

/// The library's widgets for Qt Designer and for forms that are loaded at run time.
class HoxqWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit HoxqWidgets(QObject *parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<QDesignerCustomWidgetInterface>> m_widgets;
};
