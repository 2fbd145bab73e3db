// The simulated service's side of calls that are over, and of voicemails.
#include <algorithm>

#include "simulator/runtime/service/SimulatedService.h"

namespace simulator {

std::vector<CallRecord> SimulatedService::PastCalls(std::string_view account) {
  std::vector<CallRecord> calls;
  {
    auto rows = m_database.Ask(
        "SELECT number, started, duration, incoming, conference, unseen FROM past_calls"
        " WHERE account = ? ORDER BY number",
        {account});
    while (rows.Next()) {
      calls.push_back({rows.Number(0),
                       rows.Number(1),
                       static_cast<int>(rows.Number(2)),
                       rows.Number(3) != 0,
                       rows.Number(4) != 0,
                       rows.Number(5) != 0,
                       {}});
    }
  }
  auto rows = m_database.Ask(
      "SELECT call, identity, name, type, status FROM past_calls JOIN past_call_parties ON call = number"
      " WHERE account = ? ORDER BY call, place",
      {account});
  auto call = calls.begin();
  while (rows.Next()) {
    while (call != calls.end() && call->number < rows.Number(0)) ++call;
    // Others may have made or deleted calls meanwhile.
    if (call == calls.end()) break;
    if (call->number != rows.Number(0)) continue;
    call->parties.push_back(
        {rows.Text(1), rows.Text(2), static_cast<int>(rows.Number(3)), static_cast<int>(rows.Number(4))});
  }
  return calls;
}

std::int64_t SimulatedService::AddPastCall(std::string_view account, const CallRecord& call) {
  Database::Transaction transaction(m_database);
  m_database.Run(
      "INSERT INTO past_calls (account, started, duration, incoming, conference, unseen)"
      " VALUES (?, ?, ?, ?, ?, ?)",
      {account, call.started, std::int64_t{call.duration}, std::int64_t{call.incoming},
       std::int64_t{call.conference}, std::int64_t{call.unseen}});
  const std::int64_t number = LastNumber();
  std::int64_t place = 0;
  for (const CallPartyRecord& party : call.parties) {
    m_database.Run("INSERT INTO past_call_parties VALUES (?, ?, ?, ?, ?, ?)",
                   {number, place++, std::string_view(party.identity), std::string_view(party.name),
                    std::int64_t{party.type}, std::int64_t{party.status}});
  }
  transaction.Commit();
  return number;
}

void SimulatedService::SetPastCallUnseen(std::int64_t call, bool unseen) {
  m_database.Run("UPDATE past_calls SET unseen = ?2 WHERE number = ?1", {call, std::int64_t{unseen}});
}

void SimulatedService::DeletePastCall(std::int64_t call) {
  m_database.Run("DELETE FROM past_calls WHERE number = ?", {call});
}

std::vector<VoicemailRecord> SimulatedService::Voicemails(std::string_view account) {
  std::vector<VoicemailRecord> voicemails;
  auto rows = m_database.Ask(
      "SELECT number, partner, at, duration, status FROM voicemails WHERE account = ? ORDER BY number",
      {account});
  while (rows.Next()) {
    voicemails.push_back({rows.Number(0), rows.Text(1), rows.Number(2), static_cast<int>(rows.Number(3)),
                          static_cast<int>(rows.Number(4))});
  }
  return voicemails;
}

std::int64_t SimulatedService::AddVoicemail(std::string_view account, const VoicemailRecord& voicemail) {
  if (!Exists(account)) return 0;
  m_database.Run("INSERT INTO voicemails (account, partner, at, duration, status) VALUES (?, ?, ?, ?, ?)",
                 {account, std::string_view(voicemail.partner), voicemail.at,
                  std::int64_t{voicemail.duration}, std::int64_t{voicemail.status}});
  return LastNumber();
}

void SimulatedService::ChangeVoicemailStatus(std::int64_t voicemail, int status) {
  m_database.Run("UPDATE voicemails SET status = ?2 WHERE number = ?1", {voicemail, std::int64_t{status}});
}

void SimulatedService::DeleteVoicemail(std::int64_t voicemail) {
  m_database.Run("DELETE FROM voicemails WHERE number = ?", {voicemail});
}

}  // namespace simulator
