#include "ui/mainwindow/SnapshotMaker.h"

#include "ui/widgets/LargePicture.h"

#include <utility>

namespace {

bool isLarge(const CapturedPicture& picture, const ImageRecipe& recipe)
{
    return LargePicture::isLarge(picture.image.size()) ||
           (!recipe.keepsSize && LargePicture::isLarge(recipe.bounds));
}

MadeSnapshot made(const CapturedPicture& picture, const ImageRecipe& recipe)
{
    return {picture, recipe, imaging::render(picture.image, recipe)};
}

} // namespace

SnapshotMaker::SnapshotMaker(QObject* parent)
    : QObject(parent)
{}

SnapshotMaker::~SnapshotMaker() = default;

void SnapshotMaker::capture(const CapturedPicture& picture, const ImageRecipe& recipe)
{
    // Results must be shown in order.
    if (m_capturesToCome == 0 && !isLarge(picture, recipe)) {
        Q_EMIT captured(made(picture, recipe));
        return;
    }
    ++m_capturesToCome;
    m_captures.post([this, picture, recipe] {
        m_results.post([this, result = made(picture, recipe)] { takeCaptured(result); });
    });
}

void SnapshotMaker::takeCaptured(const MadeSnapshot& made)
{
    --m_capturesToCome;
    // It would belong to the previous frame.
    forgetRemaking();
    Q_EMIT captured(made);
}

void SnapshotMaker::remake(const CapturedPicture& picture, const ImageRecipe& recipe)
{
    forgetRemaking();
    if (!isLarge(picture, recipe)) {
        Q_EMIT remade(made(picture, recipe));
        return;
    }
    m_pending = MadeSnapshot{picture, recipe, {}};
    const int request = m_request;
    m_remaking.start([this, request, picture, recipe](const NewestTask::IsCancelled&) {
        m_results.post(
            [this, request, result = made(picture, recipe)] { takeRemade(request, result); });
    });
}

void SnapshotMaker::takeRemade(int request, const MadeSnapshot& made)
{
    if (request == m_request) {
        m_pending.reset();
        Q_EMIT remade(made);
    }
}

void SnapshotMaker::finishRemaking()
{
    if (m_pending) {
        const MadeSnapshot wanted = *m_pending;
        forgetRemaking();
        Q_EMIT remade(made(wanted.picture, wanted.recipe));
    }
}

void SnapshotMaker::forgetRemaking()
{
    ++m_request;
    m_pending.reset();
    m_remaking.cancel();
}
