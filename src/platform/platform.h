#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk.h"

/// What the logic needs of the outside, one small interface per service. All texts are in the program's own character
/// set (Windows-1252).
namespace vorelio {

class Control;
class Form;

/// The user's settings, addressed by application, section and key; names count to the last blank.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> Read(const std::string& application, const std::string& section,
                                          const std::string& key) = 0;
  /// The value is kept before this returns.
  virtual void Write(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) = 0;
};

enum class Buttons { YesNo, OkCancel };
/// What keeps a hand that is too quick from losing something with a Yes or No question.
enum class Guard {
  None,
  NoFirst,    ///< Enter alone says No: Yes takes something away.
  MustChoose  ///< Escape says nothing: No throws something away.
};
enum class Icon { Plain, Question, Critical };

/// Modal boxes; each waits for the user.
class MessageService {
 public:
  virtual ~MessageService() = default;
  virtual void Show(const std::string& text) = 0;
  /// True for Yes or OK. Closing the box is the other answer, but where that would lose something.
  virtual bool Ask(const std::string& text, Buttons buttons, Icon icon, Guard guard) = 0;
  /// The box of a run-time error that ends the program.
  virtual void Fatal(int number, const std::string& text) = 0;
};

/// The common file dialogs; an empty answer is a dialog that was cancelled.
class FileDialogService {
 public:
  virtual ~FileDialogService() = default;
  /// `filter` is "words|pattern", for instance ".not |*.not", or empty for all files.
  virtual std::string Open(const std::string& folder, const std::string& filter) = 0;
  virtual std::string Save(const std::string& folder, const std::string& name, const std::string& filter) = 0;
};

struct Instant {
  int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

class ClockService {
 public:
  virtual ~ClockService() = default;
  virtual Instant Utc() = 0;
  virtual Instant Local() = 0;
};

/// The screen: it shows the forms that the logic tells it to.
class WindowService {
 public:
  virtual ~WindowService() = default;
  /// A form has come to life: its view is made here, before its `Form_Load`.
  virtual void Created(Form& form) = 0;
  /// The form is about to go; its view must not touch it afterwards.
  virtual void Destroyed(Form& form) = 0;
  /// The form's title or its being visible has changed; a form that is shown anew comes to the front.
  virtual void Changed(Form& form) = 0;
  virtual void Centre(Form& form) = 0;
  /// Waits, serving events, until the form is no longer visible or the program has ended.
  virtual void RunModal(Form& form) = 0;
  virtual void Focus(Control& control) = 0;
  /// Lets waiting events in; costs next to nothing when none wait.
  virtual void ServeEvents() = 0;
  /// Waits for something to happen and serves it.
  virtual void WaitForEvent() = 0;
};

struct PrinterFont {
  std::string name;
  double size = 10;  ///< In points.
  bool bold = false;

  bool operator==(const PrinterFont&) const = default;
};

/// The printer as a text cursor that runs down the pages, which break by themselves.
class PrinterService {
 public:
  virtual ~PrinterService() = default;
  /// The printer dialog; what is chosen there holds for the jobs that follow. False if it was cancelled.
  virtual bool Choose() = 0;
  /// The font in force.
  virtual PrinterFont Font() = 0;
  virtual void SetFont(const PrinterFont& font) = 0;
  /// Prints a line, which may be empty, in the font in force and goes on to the next one. The first line begins a job.
  virtual void PrintLine(const std::string& text) = 0;
  /// Hands the job to the printer. Nothing happens where none has begun.
  virtual void EndJob() = 0;
  virtual void DiscardJob() = 0;
};

/// The serial line to the transceiver: one port, written to and never read.
class SerialService {
 public:
  virtual ~SerialService() = default;
  /// The devices that the system's serial ports are, the first one first.
  virtual std::vector<std::string> Devices() { return {}; }
  /// Opens the system's first or second port (`number` 1 or 2); `device` names it, or is empty where the system is to
  /// find it. `settings` reads "4800,n,8,1". Error 5: the settings make no sense; 68: there is no such port.
  virtual void Open(int number, const std::string& device, const std::string& settings) = 0;
  virtual bool IsOpen() = 0;
  virtual void Close() = 0;
  /// Changes speed and format of the open port; error 5 as above.
  virtual void Configure(const std::string& settings) = 0;
  /// Forgets what has come in.
  virtual void ClearInput() = 0;
  /// Hands bytes to the port and doesn't wait; error 57 if it fails, as when the port has been unplugged.
  virtual void Write(const std::string& bytes) = 0;
  /// How many bytes are still to go out; error 57 as above.
  virtual int Pending() = 0;
};

/// Says that nobody waits for a result any more.
using Abandoned = std::function<bool()>;

/// Pages of the web.
class PageService {
 public:
  virtual ~PageService() = default;
  /// The page as text, whole. Waits for it, serving events, for `timeout_s` seconds at most. Error 71 if the site
  /// doesn't answer or has no such page; also when `abandoned` says so, which is asked after each event.
  virtual std::string Fetch(const std::string& url, int timeout_s, const Abandoned& abandoned) = 0;
};

class SoundService {
 public:
  virtual ~SoundService() = default;
  /// Plays a WAV file to its end, serving events. No sound device, no file or one that is no WAV: no sound, no error.
  virtual void Play(const std::string& path, const Abandoned& abandoned) = 0;
};

/// The clipboard of the desktop.
class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  /// Its text, line ends as CR LF; empty if it holds none.
  virtual std::string Text() = 0;
  virtual void SetText(const std::string& text) = 0;
  virtual void Clear() = 0;
};

/// Documents that other programs show, as the manual.
class DocumentService {
 public:
  virtual ~DocumentService() = default;
  /// Shows it from its beginning, or from a chapter of it if `chapter` names one. False if nothing could show it.
  virtual bool Open(const std::string& path, const std::string& chapter) = 0;
};

/// Everything that a run of the program stands on. `directory` is the program's own, where every data file lies,
/// without a separator at its end.
struct Platform {
  SettingsStore& settings;
  MessageService& messages;
  FileDialogService& dialogs;
  ClockService& clock;
  WindowService& windows;
  Disk& disk;
  PrinterService& printer;
  SerialService& serial;
  PageService& pages;
  SoundService& sounds;
  ClipboardService& clipboard;
  DocumentService& documents;
  std::string directory;
  char separator = '/';
};

}  // namespace vorelio
