#pragma once

#include "imaging/CapturedPicture.h"
#include "imaging/ImageRecipe.h"
#include "imaging/Rendering.h"
#include "ui/widgets/NewestTask.h"
#include "ui/widgets/TaskThread.h"
#include "utils/CallQueue.h"

#include <QMetaType>
#include <QObject>

#include <optional>

/// The result of applying a recipe to a captured frame.
struct MadeSnapshot
{
    CapturedPicture picture;
    ImageRecipe recipe;
    imaging::Rendering rendering;
};
Q_DECLARE_METATYPE(MadeSnapshot)

/// Makes snapshots from captured frames: small ones before the call returns, large ones in the
/// background, so that no event waits for them. User-interface thread only.
class SnapshotMaker : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotMaker(QObject* parent = nullptr);
    ~SnapshotMaker() override;

    /// Makes the first snapshot of a frame. Every call is answered by captured(), in order.
    void capture(const CapturedPicture& picture, const ImageRecipe& recipe);

    /// Whether captured() is still to come.
    [[nodiscard]] bool isCapturing() const { return m_capturesToCome > 0; }

    /// Makes another snapshot of a frame. Only the newest request is answered, by remade().
    void remake(const CapturedPicture& picture, const ImageRecipe& recipe);
    /// Completes the pending request before it returns. Waits for a large one.
    void finishRemaking();
    /// Drops the pending request.
    void forgetRemaking();

Q_SIGNALS:
    void captured(const MadeSnapshot& made);
    void remade(const MadeSnapshot& made);

private:
    void takeCaptured(const MadeSnapshot& made);
    void takeRemade(int request, const MadeSnapshot& made);

    int m_capturesToCome = 0;
    int m_request = 0;                     ///< changes with each request
    std::optional<MadeSnapshot> m_pending; ///< the pending request
    CallQueue m_results{this};
    // Last, since their threads call the other members.
    TaskThread m_captures;
    NewestTask m_remaking;
};
