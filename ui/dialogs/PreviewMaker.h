#pragma once

#include "imaging/ImageRecipe.h"
#include "ui/widgets/NewestTask.h"
#include "utils/CallQueue.h"

#include <QImage>
#include <QObject>
#include <QVector>

/// Makes the pictures that a dialog shows of an example frame: small ones at once, before the call
/// returns, large ones in the background, so that no event waits for them. User-interface thread
/// only.
class PreviewMaker : public QObject
{
    Q_OBJECT

public:
    explicit PreviewMaker(QObject* parent = nullptr);
    ~PreviewMaker() override;

    /// Makes one picture by each recipe. Of what is asked for only the newest is answered, by
    /// made().
    void make(const QImage& frame, const QVector<ImageRecipe>& recipes);
    /// What was asked for last is not answered any more.
    void cancel();

Q_SIGNALS:
    /// In the order of the recipes; null where one could not be made.
    void made(const QVector<QImage>& pictures);

private:
    void take(int request, const QVector<QImage>& pictures);

    int m_request = 0; ///< changes with what is asked for
    CallQueue m_results{this};
    NewestTask m_task; ///< last: its thread calls for the others
};
