// Message boxes that a test answers, and what they said.
//
//   SpyMessages messages;
//   const ScopedMessages scope(messages);
//   messages.answers = {2, 0};  // the buttons pressed, one question after the other
#pragma once

#include <QStringList>

#include <functional>
#include <vector>

#include "ui/toolkit/messages.h"

namespace orbisol {

struct SpyMessages : UserMessages {
  std::vector<int> answers;
  int choice = -1;                    // answer where `answers` is empty
  std::function<void()> whileAsking;  // act of somebody else
  std::vector<QString> errors, questions;
  QStringList shown;    // errors and questions in their order
  QStringList buttons;  // buttons of the last question
  int beeps = 0;

  void ShowError(QWidget* /*parent*/, const QString& text) override {
    errors.push_back(text);
    shown.append(text);
  }
  int Choose(QWidget* /*parent*/, const QString& text, const QStringList& names) override {
    questions.push_back(text);
    shown.append(text);
    buttons = names;
    if (whileAsking) whileAsking();
    if (answers.empty()) return choice;
    const int next = answers.front();
    answers.erase(answers.begin());
    return next;
  }
  void Beep() override { ++beeps; }
};

}  // namespace orbisol
