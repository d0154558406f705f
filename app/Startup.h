#pragma once

#include "app/RuntimeFolder.h"

#include <memory>

/// The steps of start-up that the window and the command line share. User-interface thread only.
namespace Startup {

/// Makes the application object, which keeps the reference to `argc`: a QApplication for windows, a
/// QGuiApplication for a program without. Before any thread starts, since it changes the
/// environment for a moment.
template <typename Application>
[[nodiscard]] std::unique_ptr<Application> makeApplication(int& argc, char** argv)
{
    const RuntimeFolder folder;
    return std::make_unique<Application>(argc, argv);
}

/// Gives the application object its name, organisation, domain and version.
void setIdentity();

/// Makes writing beyond a limit on the size of files, or to a reader that is gone, an error of that
/// file instead of the end of the program.
void makeSignalsErrors();

/// Makes the video library write critical and fatal messages only.
void quietVideoLibrary();

/// Registers the types that signals carry between threads; before any batch runs.
void registerMetaTypes();

} // namespace Startup
