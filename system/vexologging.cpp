// SPDX-License-Identifier: MIT
#include "system/vexologging.h"

#include <QLoggingCategory>

#include <map>
#include <memory>
#include <mutex>

namespace vexo::hox::qt::system {

namespace {

const QLoggingCategory *category(const char *channel)
{
    // A category keeps only the pointer to its name: the key of its own node lives as long.
    static std::map<std::string, std::unique_ptr<QLoggingCategory>> categories;
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    const auto entry
        = categories.try_emplace(std::string("hoxq.") + (channel ? channel : "")).first;
    if (!entry->second)
        entry->second = std::make_unique<QLoggingCategory>(entry->first.c_str(), QtInfoMsg);
    return entry->second.get();
}

} // namespace

VexoLogging::VexoLogging(const char *channel)
    : m_category(category(channel))
{
}

VexoLogging::~VexoLogging() = default;

bool VexoLogging::isDebugging() const
{
    return m_category->isDebugEnabled();
}

void VexoLogging::Debug(const std::string &line) const
{
    qCDebug((*m_category), "%s", line.c_str());
}

void VexoLogging::Info(const std::string &line) const
{
    qCInfo((*m_category), "%s", line.c_str());
}

void VexoLogging::Error(const std::string &line) const
{
    qCCritical((*m_category), "%s", line.c_str());
}

} // namespace vexo::hox::qt::system
