#include "ui/dialogs/PreviewMaker.h"

#include "imaging/Rendering.h"
#include "ui/widgets/LargePicture.h"

#include <algorithm>
#include <utility>

namespace {

bool isLarge(const QImage& frame, const QVector<ImageRecipe>& recipes)
{
    const auto enlarges = [](const ImageRecipe& recipe) {
        return !recipe.keepsSize && LargePicture::isLarge(recipe.bounds);
    };
    return LargePicture::isLarge(frame.size()) ||
           std::any_of(recipes.cbegin(), recipes.cend(), enlarges);
}

QVector<QImage> picturesOf(const QImage& frame, const QVector<ImageRecipe>& recipes,
                           const NewestTask::IsCancelled& isCancelled)
{
    QVector<QImage> pictures;
    for (const ImageRecipe& recipe : recipes) {
        if (isCancelled()) {
            break;
        }
        pictures.append(imaging::render(frame, recipe).image);
    }
    return pictures;
}

} // namespace

PreviewMaker::PreviewMaker(QObject* parent)
    : QObject(parent)
{}

PreviewMaker::~PreviewMaker() = default;

void PreviewMaker::make(const QImage& frame, const QVector<ImageRecipe>& recipes)
{
    cancel();
    if (!isLarge(frame, recipes)) {
        Q_EMIT made(picturesOf(frame, recipes, [] { return false; }));
        return;
    }
    const int request = m_request;
    m_task.start([this, request, frame, recipes](const NewestTask::IsCancelled& isCancelled) {
        QVector<QImage> pictures = picturesOf(frame, recipes, isCancelled);
        m_results.post(
            [this, request, pictures = std::move(pictures)] { take(request, pictures); });
    });
}

void PreviewMaker::cancel()
{
    ++m_request;
    m_task.cancel();
}

void PreviewMaker::take(int request, const QVector<QImage>& pictures)
{
    if (request == m_request) {
        Q_EMIT made(pictures);
    }
}
