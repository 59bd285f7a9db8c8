#pragma once
// SPDX-License-Identifier: MIT

#include "system/hoxqsystem_export.h"

#include <string>

class QLoggingCategory;

namespace vexo::hox::qt::system {

/// Base class of everything that logs: each call writes one line on the channel given at
/// construction. The lines go through the toolkit's category "hoxq.<channel>", so an application
/// filters them with the toolkit's own rules: QT_LOGGING_RULES="hoxq.*.debug=true" shows all of
/// them. Debug lines are off by default, Info and Error are on. Loggers may be made and used in any
/// thread.
class HOXQSYSTEM_EXPORT VexoLogging // clazy:exclude=copyable-polymorphic
{
public:
    /// \a channel is copied; null counts as the empty name.
    explicit VexoLogging(const char *channel);
    VexoLogging(const VexoLogging &) = default;
    VexoLogging &operator=(const VexoLogging &) = default;
    virtual ~VexoLogging();

    /// Whether Debug lines are written. Ask before composing a text that costs something.
    virtual bool isDebugging() const;
    /// \a line is UTF-8.
    virtual void Debug(const std::string &line) const;
    virtual void Info(const std::string &line) const;
    virtual void Error(const std::string &line) const;

private:
    const QLoggingCategory *m_category; // shared by all loggers of the channel
};

} // namespace vexo::hox::qt::system
