#include <QFile>
#include <QMessageBox>

#include "picture/picture_window.h"
#include "qt/application.h"
#include "qt/convert.h"

namespace {

/// True on a display that nobody looks at: nobody would ever press a button there, and whoever waits for this
/// program would wait for ever.
bool nobodySees() {
  const QString display = QGuiApplication::platformName();
  return display == QStringLiteral("offscreen") || display == QStringLiteral("minimal");
}

}  // namespace

/// PicturePaste: the tool that makes the pictures of a job. It leaves its picture as "temp.bmp" beside itself
/// and ends; where the operator gives up, it leaves none.
int main(int argc, char** argv) {
  const char* const name = argc > 0 ? argv[0] : "PicturePaste";
  qt::Application application(name);
  application.setQuitOnLastWindowClosed(true);
  const QString target = picture::pictureTarget(QString::fromLocal8Bit(name));
  if (nobodySees()) return 1;
  QFile::remove(target);  // one that nobody fetched would pass for the operator's
  picture::PictureWindow window(target);
  QObject::connect(&window, &picture::PictureWindow::complained, &window, [&window](const QString& words) {
    QMessageBox::warning(&window, window.windowTitle(), words);
  });
  window.show();
  return qt::Application::exec();
}
