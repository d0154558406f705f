#pragma once

#include <QIconEnginePlugin>

/// Makes Qt draw files with names that end in ".icon", as used in forms, with a LineIconEngine.
class LineIconPlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "IconPlugin.json")

public:
    QIconEngine* create(const QString& fileName) override;
};
