#pragma once

#include <QProcess>
#include <QString>
#include <memory>

#include "platform/FolderChooser.h"

namespace vantle {

/// Asks with the toolkit's dialog, which a program of its own shows. It ends with this.
class DialogFolderChooser final : public QObject, public FolderChooser {
public:
    /// `program` is the path of vantle-folder-dialog, or of one that is called alike.
    explicit DialogFolderChooser(QString program);
    ~DialogFolderChooser() override;

    void choose(const FolderRequest& request, Chosen chosen) override;

private:
    void start(const FolderRequest& request);
    void end(bool wasAsked);

    const QString program_;
    std::unique_ptr<QProcess> process_;  ///< While one is open.
    Chosen chosen_;
};

}  // namespace vantle
