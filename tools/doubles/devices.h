#pragma once

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/platform.h"

/// Doubles of what stands around the computer: printer, transceiver, web, sounds, clipboard, documents.
namespace vorelio::doubles {

/// Keeps what is printed.
class PaperRecord : public PrinterService {
 public:
  struct Event {
    enum class Kind { Line, JobEnd, JobDiscarded };
    Kind kind = Kind::Line;
    std::string text;
    PrinterFont font;
  };

  bool Choose() override;
  PrinterFont Font() override { return font_; }
  void SetFont(const PrinterFont& font) override { font_ = font; }
  void PrintLine(const std::string& text) override;
  void EndJob() override;
  void DiscardJob() override;

  /// The texts of all lines, in their order.
  std::vector<std::string> Lines() const;

  std::deque<Event> events;  ///< A test may take away what it has looked at.
  std::deque<bool> answers;  ///< For the next dialogs; a dialog that finds none is answered with OK.
  int dialogs = 0;

 private:
  PrinterFont font_{"Arial", 10, false};
};

/// Keeps the bytes that go to the transceiver.
class WireRecord : public SerialService {
 public:
  void Open(int number, const std::string& device, const std::string& settings) override;
  bool IsOpen() override { return number != 0; }
  void Close() override { number = 0; }
  void Configure(const std::string& settings) override;
  void ClearInput() override {}
  void Write(const std::string& bytes) override;
  int Pending() override { return slow > 0 ? slow-- : stuck; }

  std::string bytes;      ///< What has been written; a test may empty it.
  std::set<int> missing;  ///< Ports that can't be opened.
  bool unplugged = false;
  int slow = 0;    ///< So many times more the port still holds something.
  int stuck = 0;   ///< What it never gets rid of.
  int number = 0;  ///< The open port, 0 if none is.
  std::string device, settings;
};

/// A site that answers from memory.
class SiteRecord : public PageService {
 public:
  /// Gives a page as text, or nothing for one that fails.
  using Answer = std::function<std::optional<std::string>()>;

  std::string Fetch(const std::string& url, int timeout_s, const Abandoned& abandoned) override;

  std::map<std::string, Answer> pages;  ///< By path; what isn't here fails.
  std::deque<std::string> fetched;      ///< The paths asked for; a test may take them away.
  std::vector<std::string> urls;
  std::function<void()> OnFetch;  ///< Runs while a page is awaited.
};

class SoundRecord : public SoundService {
 public:
  void Play(const std::string& path, const Abandoned& abandoned) override;

  std::deque<std::string> played;  ///< File names, without their folder; a test may take them away.
  std::function<void()> OnPlay;    ///< Runs while a sound is heard.
};

class ClipboardRecord : public ClipboardService {
 public:
  std::string Text() override { return text; }
  void SetText(const std::string& words) override { text = words; }
  void Clear() override { text.clear(); }

  std::string text;
};

class DocumentRecord : public DocumentService {
 public:
  bool Open(const std::string& path, const std::string& chapter) override;

  std::vector<std::string> opened;  ///< Paths, with "#" and the chapter behind those that were opened at one.
  bool readable = true;
};

struct Devices {
  PaperRecord printer;
  WireRecord serial;
  SiteRecord pages;
  SoundRecord sounds;
  ClipboardRecord clipboard;
  DocumentRecord documents;

  /// A platform of these and of the services given.
  Platform Join(SettingsStore& settings, MessageService& messages, FileDialogService& dialogs, ClockService& clock,
                WindowService& windows, Disk& disk, const std::string& directory);
};

}  // namespace vorelio::doubles
