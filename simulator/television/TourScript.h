// What `zelto-tv --tour` shows: a television is switched on, a viewer signs in, changes things, sees who is
// there, looks how numbers are dialled, calls and is called, reads notices in three scripts, signs out and is
// signed in by himself the next time, sees what was missed, chats, hears a voicemail and changes the contact
// list.
#pragma once

namespace television {

inline constexpr char kTourScript[] = R"(
say The television is switched on; the engine starts its runtime
reports off
start
wait ZELTO_RUNTIME_READY 20
GetZeltoState
expect 1
GetTVModel
GetLoginState
expect 0

say Sign in with a password
reports on
Login demo demo1234 1
expect 1
wait ACCOUNT_LOGGED_IN 10
GetLoginState
expect 2
query IsLoggedIn
expect "yes | demo"

say The account's values
GetAccountInfo 1
expect demo
GetAccountInfo 2
GetAccountInfo 16
GetAccountInfo 15
GetAccountCapability 1
SetProp 16 "At home, by the television"
expect 1
GetAccountInfo 16
expect "At home, by the television"

say Settings are written and read back
SetMicVolume 77
GetMicVolume
expect 77
SetCallForwardTimer 45
GetCallForwardTimer
expect 45

say The contact list with presence
wait ACCOUNT_CBL_IN_SYNC 10
contacts
expect-like sndtest
query GetContactStatus maria
expect "yes | 1"

say Telephone numbers: the picker of countries in Korean, and how numbers are dialled
countries ko 5
expect-like ^가나 +[+]233 +gh
dial us 212 5551234
expect-like [+]12125551234.*local +2125551234, 12125551234, 15551234, 5551234.*United States .us..*part +2125551234$
dial kr 2 5551234
expect-like [+]8225551234.*local +025551234.*South Korea .kr.
dial gb 20 +33123456789
expect-like [+]33123456789.*local +0033123456789.*France .fr..*part +123456789$

say The viewer watches television, in Korean; somebody rings and gives up
language Korean
door {"order":"call","from":"maria","video":1}
wait INCOMING_CALL 10
wait PUBLIC_SHOW_NOTICE 5
notice
expect-like ^0 .* 님의 전화…
door {"order":"hangup"}
wait MISSED_CALL 10
wait PUBLIC_SHOW_NOTICE 5
notice
expect-like ^7 .*전화를 받지 못했습니다

say A video call to the echo test, which gives back what it gets
state keep
call sndtest video
expect 1
wait CALLMEMBER_INPROGRESS 15
wait-control SetCamVideoSize 5
reports off
watch 5
expect-like received, 0 dropped
expect-like round trip
GetCallInfo
expect-like ^0 . 1 .*sndtest
reports on
hangup
wait CALL_MEMBERS_CLEARED 10
SetZeltoWidgetState 0

say A call comes, in Arabic; the viewer presses the notice's third button and declines
language Arabic
door {"order":"call","from":"maria","video":1}
wait INCOMING_CALL 10
wait PUBLIC_SHOW_NOTICE 5
notice
expect-like ^0 .*يتصل بك…
press 3
expect 1
wait CALL_MEMBERS_CLEARED 10

say A call comes, in Greek; the viewer presses what has the focus, and the widget starts beside the programme
language Greek
# Right after a call none comes in.
pause 5
door {"order":"call","from":"maria","video":1}
wait INCOMING_CALL 10
wait PUBLIC_SHOW_NOTICE 5
notice
expect-like ^0 .*Κλήση από .*Βιντεοκλήση[*] -> AnswerWithVideo
press
expect 1
wait CALLMEMBER_INPROGRESS 10
wait-control StartCallWithTV 5
reports off
watch 3
expect-like one way
reports on

say The widget is closed, the call goes on; its duration is shown with a button that ends it
SetZeltoWidgetState 0
wait CALL_DURATION 5
wait PUBLIC_SHOW_NOTICE 5
notice
expect-like ^6 .* 00:00:.*Τερματισμός κλήσης
press CallEnd
expect 1
wait CALL_MEMBERS_CLEARED 10
language English

say The television before the calls and after them
state compare
# The places of the pictures stay until others are given.
expect "cameraRect extVideoRect widgetParam"

say Sign out
Logout 0
wait ACCOUNT_LOGGED_OUT 10
GetLoginState
expect 0

say The television is switched off and on: the viewer is signed in without a word
set autoStart 1
reports off
restart
wait ZELTO_RUNTIME_READY 20
reports on
wait ACCOUNT_LOGGED_IN 10
GetMicVolume
expect 77
GetAccountInfo 16
expect "At home, by the television"

say The past, with the call that was missed
wait HISTORY_CHANGED 10
history
expect-like missed call from +Maria Sample .* new

say Somebody writes
door {"order":"message","from":"maria","text":"Are you coming to dinner?"}
wait CHAT_NEW_MESSAGE 10
chats
expect-like ^Maria Sample +1 unread
OpenChatWithContact maria
expect 1
messages
expect-like Maria Sample: Are you coming to dinner[?]
SendMessage "At seven, with cake"
expect 1
# With what comes back.
wait UNREAD_COUNT_CHANGED 10
messages
expect-like : At seven, with cake  .sent.*Maria Sample: You wrote: At seven
CloseChat
expect 1
chats
expect-like ^Maria Sample +[^u]+ chat

say A voicemail is left and played
door {"order":"voicemail","from":"anna","seconds":2}
wait PUBLIC_SHOW_NOTICE 10
notice
expect-like ^4 .*voicemail
press
history
expect-like ^0 +voicemail from +Anna .* 0:02 +new
PlayVoicemail 0
expect 1
wait VOICEMAIL_STATUS_6 10
wait HISTORY_CHANGED 5
history
expect-like voicemail from +Anna .* 0:02
media
expect-like packets sent, [1-9][0-9]* received

say Somebody is looked for in the directory, added, renamed, blocked and removed
SearchNewContact slow
expect 1
wait CONTACTSEARCH_RESULT_READY 5
found
expect-like ^Slow Going +slow.going +Portugal
AddContact slow.going "Hello from the television"
expect 1
wait CONTACT_UPDATED 5
contacts
expect-like slow.going [|]+ .*Slow Going
Rename slow.going "Slowly Going"
expect 1
wait CONTACT_UPDATED 5
contacts
expect-like Slowly Going
Block slow.going 0
expect 1
wait CONTACT_BLOCKED 5
blocked
expect-like Slowly Going +slow.going
Unblock slow.going
expect 1
wait CONTACT_GROUP_CHANGED 5
blocked
expect-like ^Jonas +jonas$
Remove slow.going
expect 1
wait CONTACT_REMOVED 5
contacts
IsMyBuddy slow.going
expect 0
)";

}  // namespace television
