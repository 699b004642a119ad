#include "platform/qt/FileCommand.h"

#include <QFile>
#include <QStandardPaths>

namespace vantle {

std::optional<FileCommand> commandFor(std::span<const FileProgram> programs,
                                      const std::vector<Url>& files) {
    for (const auto& [name, option] : programs) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (path.isEmpty()) continue;
        FileCommand command{QFile::encodeName(path).toStdString(), {}};
        for (const Url& file : files) {
            if (option) command.arguments.emplace_back(option);
            command.arguments.push_back(file.path());
        }
        return command;
    }
    return std::nullopt;
}

}  // namespace vantle
