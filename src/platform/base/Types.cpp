#include "platform/base/Types.h"
