#include "qt/qt_clock.h"

#include <QDateTime>

namespace vorelio {

namespace {

Instant ToInstant(const QDateTime& moment) {
  const QDate date = moment.date();
  const QTime time = moment.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

}  // namespace

Instant QtClock::Utc() { return ToInstant(QDateTime::currentDateTimeUtc()); }
Instant QtClock::Local() { return ToInstant(QDateTime::currentDateTime()); }

}  // namespace vorelio
