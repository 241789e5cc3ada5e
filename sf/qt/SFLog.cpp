#include "sf/qt/SFLog.h"

Q_LOGGING_CATEGORY(lcSf, "tallix.sf", QtWarningMsg)
