#include "ui/OpenPanel.h"

#include <QFileDialog>
#include <QFileIconProvider>
#include <QMimeDatabase>

namespace {

/// Icons and kinds of files by their names alone. The toolkit's own way looks into a file whose
/// name does not tell what it is, and a panel that lists a folder has no business in its files.
class IconsByName : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;

    QIcon icon(const QFileInfo &file) const override
    {
        if (!file.isFile())
            return QFileIconProvider::icon(file);
        return QIcon::fromTheme(kindOf(file).iconName(), QFileIconProvider::icon(File));
    }

    QString type(const QFileInfo &file) const override
    {
        return file.isFile() ? kindOf(file).comment() : QFileIconProvider::type(file);
    }

private:
    static QMimeType kindOf(const QFileInfo &file)
    {
        return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    }
};

/// Never destroyed: a panel may still be reading a folder when the program ends.
IconsByName *iconsByName()
{
    static auto *const icons = new IconsByName;
    return icons;
}

} // namespace

void OpenPanel::importInto(BlogViewModel *store)
{
    auto *panel = new QFileDialog;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    // The program ends with its window; the panels go with it.
    panel->setAttribute(Qt::WA_QuitOnClose, false);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(tr("RSS feeds") + QStringLiteral(" (*.rss *.xml)"));
    panel->setIconProvider(iconsByName());

    connect(
        panel, &QFileDialog::fileSelected, this,
        [store = store->shared_from_this()](const QString &path) { store->importRSSFeed(path); });
    panel->show();
}
