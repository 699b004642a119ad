#pragma once

#include <QProcess>
#include <QString>
#include <memory>

#include "platform/FolderChooser.h"

namespace vantle {

/// Shows the toolkit's dialog in a separate program, which ends when this object is destroyed.
class DialogFolderChooser final : public QObject, public FolderChooser {
public:
    /// `program` is the path of vantle-folder-dialog, or of a program with the same command line.
    explicit DialogFolderChooser(QString program);
    ~DialogFolderChooser() override;

    void choose(const FolderRequest& request, Chosen chosen) override;

private:
    void start(const FolderRequest& request);
    void end(bool wasAsked);

    const QString program_;
    std::unique_ptr<QProcess> process_;  ///< Set while a dialog is open.
    Chosen chosen_;
};

}  // namespace vantle
