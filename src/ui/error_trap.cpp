#include "ui/error_trap.h"

#include <exception>
#include <new>
#include <string>

#include "text/cancelled.h"
#include "ui/desktop.h"

namespace ui {

void reportTrapped(Desktop* desktop, std::string_view procedure) {
  if (desktop == nullptr) throw;
  Message report{std::string(procedure), {}, Icon::Critical};
  try {
    throw;
  } catch (const text::Cancelled&) {
    throw;
  } catch (const std::bad_alloc&) {
    report.text = "メモリが不足しています。";
  } catch (const std::exception& error) {
    report.text = error.what();
  }
  desktop->message(report);
}

}  // namespace ui
