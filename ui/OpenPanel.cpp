#include "ui/OpenPanel.h"

#include "model/UserDirectories.h"

#include <QDir>
#include <QFileDialog>

void OpenPanel::importInto(BlogViewModel *store)
{
    if (m_folder.isEmpty())
        m_folder = documentsDirectory();

    auto *panel = new QFileDialog;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    // The program ends with its window; the panels go with it.
    panel->setAttribute(Qt::WA_QuitOnClose, false);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(tr("RSS feeds") + QStringLiteral(" (*.rss *.xml)"));
    panel->setDirectory(m_folder);

    connect(
        panel, &QFileDialog::fileSelected, this,
        [store = store->shared_from_this()](const QString &path) { store->importRSSFeed(path); });
    connect(panel, &QFileDialog::finished, this,
            [this, panel] { m_folder = panel->directory().path(); });
    panel->show();
}
