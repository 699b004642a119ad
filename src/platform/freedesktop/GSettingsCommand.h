#pragma once

#include <QString>
#include <QStringList>

#include "platform/linux/screenshots/GSettings.h"

namespace vantle {

/// Uses the command gsettings, so that this process need not load the desktop's libraries, which
/// would end it if a schema is missing. Each call waits for the answer, three seconds at most. Any
/// thread.
class GSettingsCommand final : public GSettings {
public:
    Result<std::string> text(const std::string& schema, const std::string& key) const override;
    Outcome setText(const std::string& schema, const std::string& key,
                    const std::string& text) override;
    Outcome reset(const std::string& schema, const std::string& key) override;
    bool isWritable(const std::string& schema, const std::string& key) const override;
};

}  // namespace vantle
