#include "platform/freedesktop/FileCommand.h"

#include <QFile>
#include <QStandardPaths>

namespace vantle {

std::optional<FileCommand> commandFor(std::span<const FileProgram> programs,
                                      const std::vector<Url>& files) {
    std::vector<std::string> paths;
    paths.reserve(files.size());
    for (const Url& file : files) paths.push_back(file.path());
    return commandForArguments(programs, paths);
}

std::optional<FileCommand> commandForArguments(std::span<const FileProgram> programs,
                                               const std::vector<std::string>& arguments) {
    for (const auto& [name, option] : programs) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (path.isEmpty()) continue;
        FileCommand command{QFile::encodeName(path).toStdString(), {}};
        for (const auto& argument : arguments) {
            if (option) command.arguments.emplace_back(option);
            command.arguments.push_back(argument);
        }
        return command;
    }
    return std::nullopt;
}

}  // namespace vantle
