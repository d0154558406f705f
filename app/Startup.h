#pragma once

/// The steps of start-up that the window and the command line share. User-interface thread only.
namespace Startup {

/// Gives the application object its name, organisation, domain and version.
void setIdentity();

/// Makes the video library write critical and fatal messages only.
void quietVideoLibrary();

/// Registers the types that signals carry between threads; before any batch runs.
void registerMetaTypes();

} // namespace Startup
