#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include "cluster/cluster_window.h"
#include "cluster/made_up_page.h"
#include "entry/ddfm.h"
#include "qt/qt_pages.h"
#include "qt/qt_serial.h"
#include "qt/qt_sounds.h"
#include "support/error_of.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

/// A web site on this computer. Each path has its whole answer, header and all; a path without one is never answered.
class LoopbackSite {
 public:
  LoopbackSite() {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        const QByteArray path = socket->readAll().split(' ').value(1);
        if (!answers.contains(path)) return;
        socket->write(answers[path]);
        socket->disconnectFromHost();
      });
    });
  }

  std::string Address() const { return "http://127.0.0.1:" + std::to_string(server_.serverPort()); }
  void Close() { server_.close(); }

  QMap<QByteArray, QByteArray> answers;

 private:
  QTcpServer server_;
};

QByteArray Answer(const QByteArray& body, const QByteArray& status = "200 OK", const QByteArray& more = {}) {
  return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" + more + "\r\n" +
         body;
}

/// The far end of a cable, and the device of this end.
struct Cable {
  Cable() {
    int near = -1;
    char name[64] = {};
    openpty(&far, &near, name, nullptr, nullptr);
    ::close(near);
    device = name;
    ::fcntl(far, F_SETFL, O_NONBLOCK);
  }
  ~Cable() { Unplug(); }

  void Unplug() {
    if (far >= 0) ::close(far);
    far = -1;
  }
  std::string Received() const {
    char bytes[1024];
    const ssize_t count = ::read(far, bytes, sizeof bytes);
    return {bytes, count > 0 ? static_cast<std::size_t>(count) : 0};
  }

  int far = -1;
  std::string device;
};

/// The program with real pages.
struct OnlineBench : WindowsBench {
  OnlineBench()
      : run({settings, messages, dialogs, clock, windows, disk, devices.printer, devices.serial, pages, devices.sounds,
             devices.clipboard, devices.documents, folder.Path(), '/'}) {
    settings.Write("DDFM", "Setup", "Adresse Cluster", site.Address());
    windows.Deliver(run, [this] {
      run.Fenetre<DDFM>();
      run.Fenetre<Cluster>().Show();
    });
    windows.ShowPending();
  }

  /// Presses the button, and does something while the page is on its way; tells how long that took.
  qint64 Load(const std::function<void()>& meanwhile) {
    QElapsedTimer time;
    time.start();
    QTimer::singleShot(100, &windows, meanwhile);
    QTest::mouseClick(windows.WidgetOf(run.Fenetre<Cluster>().Afficher), Qt::LeftButton);
    return time.elapsed();
  }

  LoopbackSite site;
  QtPages pages{windows};
  Programme run;
};

// --- Pages ---

TEST(DevicesTest, PagesAsTheyCome) {
  QtWindows windows;
  QtPages pages(windows);
  LoopbackSite site;
  const QByteArray large(qsizetype{5} * 1024 * 1024, 'x');
  site.answers = {{"/utf8", Answer("\xC3\xA9\n\xE2\x82\xAC\xD0\x96\r\n")},
                  {"/latin", Answer("\xE9\x80\n")},
                  {"/empty", Answer("")},
                  {"/large", Answer(large)},
                  {"/moved", Answer("", "302 Found", "Location: /latin\r\n")},
                  {"/gone", Answer("a page all the same", "404 Not Found")},
                  {"/cut", Answer("whole").chopped(2)},
                  {"/huge", Answer(QByteArray(QtPages::kLargest + 1, 'x'))}};
  const auto fetch = [&](const char* path) { return pages.Fetch(site.Address() + path, 30, [] { return false; }); };
  EXPECT_EQ(fetch("/utf8"), "\xE9\n\x80?\r\n");
  EXPECT_EQ(fetch("/latin"), "\xE9\x80\n");
  EXPECT_EQ(fetch("/empty"), "");
  EXPECT_TRUE(fetch("/large") == large.toStdString());
  EXPECT_EQ(fetch("/moved"), "\xE9\x80\n");
  for (const char* path : {"/gone", "/cut", "/huge"}) EXPECT_EQ(ErrorOf([&] { fetch(path); }), 71);
  site.Close();
  EXPECT_EQ(ErrorOf([&] { fetch("/latin"); }), 71);
}

TEST(DevicesTest, APageThatNeverComes) {
  QtWindows windows;
  QtPages pages(windows);
  const LoopbackSite site;
  QElapsedTimer time;
  time.start();
  EXPECT_EQ(ErrorOf([&] { pages.Fetch(site.Address() + "/", 1, [] { return false; }); }), 71);
  EXPECT_TRUE(time.elapsed() >= 900 && time.elapsed() < 5000);
  time.start();
  bool closed = false;
  QTimer::singleShot(50, &windows, [&] { closed = true; });
  EXPECT_EQ(ErrorOf([&] { pages.Fetch(site.Address() + "/", 60, [&] { return closed; }); }), 71);
  EXPECT_TRUE(time.elapsed() < 3000);
  for (const char* url : {"file:///etc/passwd", "/dxc/a.html", "http://", "ftp://127.0.0.1/"})
    EXPECT_EQ(ErrorOf([&] { pages.Fetch(url, 1, [] { return false; }); }), 71);
}

TEST(DevicesTest, TheOperatorWorksOnWhileAPageIsAwaited) {
  OnlineBench bench;
  auto& main = bench.run.Fenetre<DDFM>();
  auto& cluster = bench.run.Fenetre<Cluster>();
  bench.Load([&] {
    QTest::keyClicks(bench.windows.WidgetOf(main.Indicatif_A), QStringLiteral("f9aaa"));
    bench.windows.Deliver(bench.run, [&] { cluster.UserClose(); });
  });
  EXPECT_EQ(main.Indicatif_A.Text(), "F9AAA");
  EXPECT_TRUE(bench.messages.boxes.empty());

  bench.windows.Deliver(bench.run, [&] { bench.run.Fenetre<Cluster>().Show(); });
  bench.windows.ShowPending();
  bench.site.answers["/dxc/top_250_HF.html"] =
      Answer(QByteArray::fromStdString(MadeUpPage({{.remarks = std::string(3000000, 'w')}, {.dx = "F9BBB"}})));
  bench.Load([] {});
  auto& reopened = bench.run.Fenetre<Cluster>();
  EXPECT_EQ(reopened.Liste_Stations.Count(), 2);
  // The heading stands over the columns, in the list itself.
  const QWidget* heading = bench.windows.WidgetOf(reopened.Label11);
  EXPECT_EQ(heading->parentWidget(), bench.windows.WidgetOf(reopened.Liste_Stations));
  EXPECT_TRUE(heading->height() > 10);
}

TEST(DevicesTest, ClosingEndsTheWaitingAtOnce) {
  {
    OnlineBench bench;
    QWidget* window = bench.windows.WindowOf(bench.run.Fenetre<Cluster>());
    EXPECT_TRUE(bench.Load([=] { window->close(); }) < 3000);
    EXPECT_TRUE(!bench.run.Ouverte<Cluster>() && !bench.run.Termine_Deja());
  }
  OnlineBench bench;
  QWidget* window = bench.windows.WindowOf(bench.run.Fenetre<DDFM>());
  EXPECT_TRUE(bench.Load([=] { window->close(); }) < 3000);
  EXPECT_TRUE(bench.run.Termine_Deja());
  EXPECT_EQ(bench.run.Erreur_Fatale(), 0);
  EXPECT_TRUE(bench.messages.boxes.empty());
}

// --- Serial line ---

TEST(DevicesTest, EveryByteGoesThrough) {
  const Cable cable;
  QtSerial port;
  port.Open(1, cable.device, "19200,n,8,1");
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  port.Write(bytes);
  EXPECT_TRUE(QTest::qWaitFor([&] { return port.Pending() == 0; }));
  EXPECT_TRUE(cable.Received() == bytes);
  termios state{};
  EXPECT_EQ(tcgetattr(cable.far, &state), 0);
  EXPECT_EQ(cfgetospeed(&state), static_cast<speed_t>(B19200));
  port.Configure("4800,n,8,1");
  EXPECT_EQ(tcgetattr(cable.far, &state), 0);
  EXPECT_EQ(cfgetospeed(&state), static_cast<speed_t>(B4800));
  port.ClearInput();
  port.Close();
  EXPECT_FALSE(port.IsOpen());
}

TEST(DevicesTest, PortsThatFail) {
  Cable cable;
  QtSerial port;
  EXPECT_EQ(ErrorOf([&] { port.Open(1, "/dev/none", "4800,n,8,1"); }), 68);
  EXPECT_EQ(ErrorOf([&] { port.Open(1, "/dev/null", "4800,n,8,1"); }), 68);
  EXPECT_EQ(ErrorOf([&] { port.Open(99, "", "4800,n,8,1"); }), 68);
  for (const char* settings : {"0", "", "4801,n,8,1", "4800,x,8,1", "4800,n,9,1", "4800,n,8", "4800,n,8,3"})
    EXPECT_EQ(ErrorOf([&] { port.Open(1, cable.device, settings); }), 5);
  EXPECT_EQ(ErrorOf([&] { port.Write("x"); }), 57);

  // A set that reads nothing: what is written waits, up to a limit, and nothing here does.
  port.Open(1, cable.device, "4800,n,8,1");
  QElapsedTimer time;
  time.start();
  // The system moves some of it on after the first writes.
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(ErrorOf([&] {
                for (int i = 0; i < 1000; ++i) port.Write(std::string(500, 'x'));
              }),
              57);
    QTest::qSleep(50);
  }
  EXPECT_TRUE(port.Pending() > 0);
  port.Close();
  EXPECT_TRUE(time.elapsed() < 3000);

  port.Open(1, cable.device, "4800,n,8,1");
  cable.Unplug();
  EXPECT_EQ(ErrorOf([&] { port.Write("x"); }), 57);
  EXPECT_EQ(ErrorOf([&] { port.Configure("9600,n,8,1"); }), 57);
  port.Close();
}

// --- Sounds ---

// Where there is no sound device, and for a file that is no sound, nothing is waited for.
TEST(DevicesTest, SoundsDoNotHoldUp) {
  QtWindows windows;
  QtSounds sounds(windows);
  const ScratchFolder folder;
  const std::string good = std::string(VORELIO_DATA_DIR) + "/ringout.wav";
  const std::string bytes = [&] {
    QFile file(QString::fromStdString(good));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  }();
  EXPECT_TRUE(bytes.size() > 44);
  folder.Write("empty.wav", "");
  folder.Write("cut.wav", bytes.substr(0, 30));
  folder.Write("text.wav", std::string(5000, 'x'));
  // A size that leads far past the end.
  folder.Write("size.wav", bytes.substr(0, 16) + "\xFF\xFF\xFF\xFF" + bytes.substr(20));
  QElapsedTimer time;
  for (const char* name : {"none.wav", "empty.wav", "cut.wav", "text.wav", "size.wav"}) {
    time.start();
    sounds.Play(folder.File(name), [] { return false; });
    EXPECT_TRUE(time.elapsed() < 500) << name;
  }
  time.start();
  sounds.Play(good, [] { return false; });
  EXPECT_TRUE(time.elapsed() < 5000);
}

}  // namespace
}  // namespace vorelio::tests
