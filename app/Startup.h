#pragma once

#include <memory>

class QApplication;

/// The steps of start-up that the window and the command line share. User-interface thread only.
namespace Startup {

/// Makes the application object, which keeps the reference to `argc`. Before any thread starts,
/// since it changes the environment for a moment.
[[nodiscard]] std::unique_ptr<QApplication> makeApplication(int& argc, char** argv);

/// Gives the application object its name, organisation, domain and version.
void setIdentity();

/// Makes the video library write critical and fatal messages only.
void quietVideoLibrary();

/// Registers the types that signals carry between threads; before any batch runs.
void registerMetaTypes();

} // namespace Startup
