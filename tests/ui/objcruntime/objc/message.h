#pragma once

// Without parameters, as the runtime declares it: callers cast it to the type of the method.
extern "C" void objc_msgSend(void);
