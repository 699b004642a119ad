#pragma once

#include <QString>
#include <QStringList>

#include "platform/linux/screenshots/GSettings.h"

namespace vantle {

/// Asks by the desktop's own command, so that its libraries are never loaded here, and a schema
/// that is not there is an answer instead of the end of the program. Each call waits for the
/// answer, three seconds at most. Any thread.
class GSettingsCommand final : public GSettings {
public:
    Result<std::string> text(const std::string& schema, const std::string& key) const override;
    Outcome setText(const std::string& schema, const std::string& key,
                    const std::string& text) override;
    Outcome reset(const std::string& schema, const std::string& key) override;
    bool isWritable(const std::string& schema, const std::string& key) const override;
};

}  // namespace vantle
