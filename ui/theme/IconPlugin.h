#pragma once

#include <QIconEnginePlugin>

/// Has Qt draw the files whose names end in ".icon", as forms name them, by a LineIconEngine.
class LineIconPlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "IconPlugin.json")

public:
    QIconEngine* create(const QString& fileName) override;
};
