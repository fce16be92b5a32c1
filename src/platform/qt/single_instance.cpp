#include "platform/qt/single_instance.hpp"

#include <QDir>

namespace benchlog::qt {

SingleInstance::SingleInstance(const QString& name)
    : lock_(QDir::temp().filePath(name + "-" + qEnvironmentVariable("USER") + ".lock")), first_(lock_.tryLock(0)) {}

}  // namespace benchlog::qt
