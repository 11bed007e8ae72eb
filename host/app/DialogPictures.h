#pragma once

#include <QString>

namespace vantrix::app {

/* Opens every dialog of the registry and saves a picture of each, named after the dialog. */
class DialogPictures
{
public:
    explicit DialogPictures(QString directory);

    /* Makes the folder where it is missing. Returns a sentence that tells what went wrong, else nothing. */
    QString save() const;

private:
    QString m_directory;
};

} // namespace vantrix::app
