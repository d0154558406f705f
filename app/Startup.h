#pragma once

#include "app/RuntimeFolder.h"

#include <memory>

/// Start-up steps shared by the window and the command line. User-interface thread only.
namespace Startup {

/// Creates the application object, which keeps the reference to `argc`: a QApplication for windows,
/// a QGuiApplication for a program without. Call it before any thread starts, since it changes the
/// environment for a moment.
template <typename Application>
[[nodiscard]] std::unique_ptr<Application> makeApplication(int& argc, char** argv)
{
    const RuntimeFolder folder;
    return std::make_unique<Application>(argc, argv);
}

/// Gives the application object its name, organisation, domain and version.
void setIdentity();

/// Turns writing beyond a file size limit, or to a closed pipe, into an error instead of the end of
/// the program.
void makeSignalsErrors();

/// Limits the messages of the video library to critical and fatal ones.
void quietVideoLibrary();

/// Registers the types of signals between threads. Call it before any batch runs.
void registerMetaTypes();

} // namespace Startup
