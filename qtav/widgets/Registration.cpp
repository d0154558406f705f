#include "qtav/widgets/OpenGLSupport.h"

#include <QtAVWidgets>

#include <QtAV/VideoFrame.h>

namespace QtAV {
namespace Widgets {

void registerRenderers()
{
    qRegisterMetaType<QtAV::VideoFrame>("QtAV::VideoFrame");
    static_cast<void>(openGLSupport());
}

} // namespace Widgets
} // namespace QtAV
