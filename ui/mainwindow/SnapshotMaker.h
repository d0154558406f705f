#pragma once

#include "imaging/CapturedPicture.h"
#include "imaging/ImageRecipe.h"
#include "imaging/Rendering.h"
#include "ui/widgets/NewestTask.h"
#include "ui/widgets/TaskThread.h"

#include <QMetaType>
#include <QObject>

#include <optional>

/// What a recipe has made of a captured frame.
struct MadeSnapshot
{
    CapturedPicture picture;
    ImageRecipe recipe;
    imaging::Rendering rendering;
};
Q_DECLARE_METATYPE(MadeSnapshot)

/// Makes snapshots of captured frames: small ones at once, before the call returns, large ones in
/// the background, so that no event waits for them. User-interface thread only.
class SnapshotMaker : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotMaker(QObject* parent = nullptr);
    ~SnapshotMaker() override;

    /// Makes the first snapshot of a frame. Each call is answered by captured(), in their order.
    void capture(const CapturedPicture& picture, const ImageRecipe& recipe);

    /// Makes another snapshot of a frame. Of what is asked for only the newest is answered, by
    /// remade().
    void remake(const CapturedPicture& picture, const ImageRecipe& recipe);
    /// Has what was asked for last answered before this returns. Waits for a large one.
    void finishRemaking();
    /// What was asked for last is not answered any more.
    void forgetRemaking();

Q_SIGNALS:
    void captured(const MadeSnapshot& made);
    void remade(const MadeSnapshot& made);

private:
    Q_INVOKABLE void takeCaptured(const MadeSnapshot& made);
    Q_INVOKABLE void takeRemade(int request, const MadeSnapshot& made);

    int m_capturesToCome = 0;
    int m_request = 0;                     ///< changes with what is asked for
    std::optional<MadeSnapshot> m_pending; ///< what is being made anew
    // Last: their threads call for the others.
    TaskThread m_captures;
    NewestTask m_remaking;
};
