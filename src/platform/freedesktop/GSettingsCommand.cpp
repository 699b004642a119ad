#include "platform/freedesktop/GSettingsCommand.h"

#include <QProcess>
#include <array>
#include <cerrno>
#include <optional>

namespace vantle {
namespace {

constexpr int timeout = 3000;  // milliseconds

Result<QString> run(const QStringList& arguments) {
    QProcess process;
    // In a locale other than UTF-8 it would print question marks for some characters.
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(QStringLiteral("gsettings"), arguments);
    if (!process.waitForFinished(timeout)) {
        const Failure failure{ETIME, process.errorString().toStdString(), {}};
        process.kill();
        process.waitForFinished();
        return failure;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return Failure{EINVAL, process.readAllStandardError().trimmed().toStdString(), {}};
    return QString::fromUtf8(process.readAllStandardOutput().trimmed());
}

QStringList arguments(const char* command, const std::string& schema, const std::string& key) {
    return {QString::fromLatin1(command), QString::fromStdString(schema),
            QString::fromStdString(key)};
}

Outcome outcome(const Result<QString>& result) {
    return result ? Outcome() : Outcome(result.failure());
}

/// Returns the text that the command has printed in single or double quotes with the escapes of C.
/// Returns nothing if it has printed another kind of value.
std::optional<QString> unquoted(const QString& printed) {
    const bool isText = printed.size() >= 2 && printed.front() == printed.back() &&
                        (printed.front() == u'\'' || printed.front() == u'"');
    if (!isText) return std::nullopt;
    QString text;
    for (qsizetype i = 1; i + 1 < printed.size(); ++i) {
        if (printed[i] != u'\\') {
            text += printed[i];
            continue;
        }
        const QChar letter = printed[++i];
        const qsizetype digits = letter == u'u' ? 4 : letter == u'U' ? 8 : 0;
        if (digits > 0) {
            text += QString::fromUcs4(
                std::array{char32_t{printed.mid(i + 1, digits).toUInt(nullptr, 16)}}.data(), 1);
            i += digits;
        } else {
            constexpr QStringView letters = u"abfnrtv";
            constexpr QStringView meanings = u"\a\b\f\n\r\t\v";
            const auto at = letters.indexOf(letter);
            text += at < 0 ? letter : meanings[at];
        }
    }
    return text;
}

/// Returns the text in quotes, as the command takes it.
QString quoted(const std::string& text) {
    QString escaped = QString::fromStdString(text);
    escaped.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
    return u'\'' + escaped + u'\'';
}

}  // namespace

Result<std::string> GSettingsCommand::text(const std::string& schema,
                                           const std::string& key) const {
    const auto printed = run(arguments("get", schema, key));
    if (!printed) return printed.failure();
    const auto text = unquoted(printed.value());
    if (!text) return Failure{EINVAL, "the value is not text", {}};
    return text->toStdString();
}

Outcome GSettingsCommand::setText(const std::string& schema, const std::string& key,
                                  const std::string& text) {
    return outcome(run(arguments("set", schema, key) << quoted(text)));
}

Outcome GSettingsCommand::reset(const std::string& schema, const std::string& key) {
    return outcome(run(arguments("reset", schema, key)));
}

bool GSettingsCommand::isWritable(const std::string& schema, const std::string& key) const {
    const auto answer = run(arguments("writable", schema, key));
    return answer && answer.value() == u"true";
}

}  // namespace vantle
