#include "ui/OpenPanel.h"

#include "model/UserDirectories.h"

#include <QFileDialog>

void OpenPanel::importInto(BlogViewModel *store)
{
    if (m_folder.isEmpty())
        m_folder = QUrl::fromLocalFile(documentsDirectory());

    auto *panel = new QFileDialog;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    // The program ends with its window; the panels go with it.
    panel->setAttribute(Qt::WA_QuitOnClose, false);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(tr("RSS feeds (*.rss *.xml)"));
    panel->setDirectoryUrl(m_folder);

    connect(panel, &QFileDialog::fileSelected, this,
            [store = store->shared_from_this()](const QString &path) {
                store->importRSSFeed(QUrl::fromLocalFile(path));
            });
    connect(panel, &QFileDialog::finished, this,
            [this, panel] { m_folder = panel->directoryUrl(); });
    panel->show();
}
