#pragma once
// Debug lines of the framework; off unless QT_LOGGING_RULES enables "tallix.sf".

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcSf)
