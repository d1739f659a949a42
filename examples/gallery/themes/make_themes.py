#!/usr/bin/env python3
"""Writes the gallery's theme files from the tables in this file.

    make_themes.py              write colors.json, meridian_<mode>.json and <mode>.json
    make_themes.py --check      exit with 1 when a file on disk differs from the tables
    make_themes.py --contrast   print the pairs that are hard to read, and how many were looked at

Three tables, read from top to bottom:

- RAMPS: one hue a line. The number of a colour is its lightness (CIE L*, 0 black to 100 white),
  the same in every ramp, so two colours whose numbers are 50 apart are readable on each other
  whatever their hues. A colour enters colors.json when an application token uses it.
- ROLES: what a colour is for, in the three modes. A role moves one way through its states: darker
  in the light mode, lighter in the two dark ones.
- SYSTEM_TOKENS and APPLICATION_TOKENS: which role each colour-set token has.

The pairs of --contrast come from the token names alone. The first word of a name (the family) never
counts as a part word. The last part word in a name decides what the token is:

    background   background, or a word that ends in Background
    text         text, textprimary, textsecondary, textsecondarycompany, textmissed, label, name,
                 role, speaker, description
    icon         icon or a word that begins with icon, a word that ends in Icon, tint, tick
    mark         indicator, cursor, audioMuted, audioUnmuted
    border       border, outline
    none         anything else: not looked at

(upper and lower case of text words do not matter). The words before the part word are the token's
base, those after it its suffix. Backgrounds belong to the base they stand after; of a base that has
"container" as its last word, also to the base without it.

A text or an icon stands on the backgrounds of the first base that has any: its name up to and
including the part word, its base, then its base with one more word dropped from the end, down to the
family. Where one of those backgrounds has the same suffix as the token, only that one counts. A mark,
the names in BESIDE (a label beside its indicator), and whatever finds no background stand on the
SURFACES. A border counts when its name begins with one of CONTROL_BORDERS, and is laid on the panel
backgrounds; a border that is fully transparent in a state is skipped in that state.
label-common-white-text and label-common-black-text are for text over pictures and are laid on each
other. Tokens with the word "disabled" in their name are not looked at.

States: normal, hovered, pressed, focused and checked, each on the same state of the background; on
SURFACES, panels and the black and white labels always on "normal". A background that is not opaque is
first laid over the mode's panel-primary-background, then the foreground over the result. The ratio is
that of WCAG 2; text needs 4.5 (7 in the high-contrast mode), icons, marks and borders 3.
"""

import argparse
import json
import math
import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
TOKEN_LIST = HERE.parents[2] / "src" / "theme" / "ColorSetTokens.h"

MODES = ("default", "dark", "highcontrast")
STATES = ("normal", "hovered", "pressed", "disabled", "focused", "checked")

# name: hue in degrees and chroma, both of OKLCH
RAMPS = {
    "neutral": (265, 0.009),
    "slate": (252, 0.045),
    "indigo": (274, 0.185),
    "cobalt": (256, 0.165),
    "cyan": (218, 0.125),
    "mint": (172, 0.120),
    "green": (150, 0.150),
    "lime": (128, 0.160),
    "yellow": (104, 0.150),
    "gold": (82, 0.145),
    "orange": (52, 0.160),
    "red": (25, 0.185),
    "pink": (356, 0.170),
    "purple": (318, 0.170),
    "violet": (295, 0.180),
}

# A name for what a hue means; an alias may stand for an alias above it.
ALIASES = {
    "accent": "indigo",
    "success": "green",
    "warning": "gold",
    "danger": "red",
    "info": "cobalt",
    "share": "orange",
    "caution": "warning",
}

# role | default | dark | highcontrast
#
# A cell is one colour for all states, or six: normal, hovered, pressed, disabled, focused, checked.
# A number takes the ramp named before the colon, "0/40" is tone 0 at 40 % opacity, "red-46" names its
# ramp itself, "clear" is fully transparent. "*" is the ramp a token asks for: fill@danger.
#
# Roles of things that are selected rather than pushed (row, date, glyph, nav) have the same colour
# focused as at rest: the colour look-up then falls through to "checked", and a selected row keeps its
# colour while it has the keyboard. The focus ring shows where the focus is.
ROLES = """
page          | neutral: 100                 | neutral: 10                  | neutral: 0
page-2        | neutral: 97                  | neutral: 14                  | neutral: 0
page-3        | neutral: 94                  | neutral: 18                  | neutral: 0
raised        | neutral: 100                 | neutral: 17                  | neutral: 0
raised-2      | neutral: 98                  | neutral: 20                  | neutral: 0
raised-3      | neutral: 95                  | neutral: 23                  | neutral: 0
header        | neutral: 95                  | neutral: 7                   | neutral: 0
inverse       | neutral: 20                  | neutral: 90                  | neutral: 0
on-inverse    | neutral: 98                  | neutral: 8                   | neutral: 100
tint@         | *: 95                        | *: 16                        | neutral: 0
clear         | clear                        | clear                        | clear
white         | neutral: 100                 | neutral: 100                 | neutral: 100
black         | neutral: 0                   | neutral: 0                   | neutral: 0

scrim         | neutral: 0/45                | neutral: 0/60                | neutral: 0/80
scrim-light   | neutral: 0/25                | neutral: 0/40                | neutral: 0/70
scrim-strong  | neutral: 0/70                | neutral: 0/72                | neutral: 0/88
off-white     | neutral: 94                  | neutral: 90                  | neutral: 96

line          | neutral: 86                  | neutral: 28                  | neutral: 80
line-light    | neutral: 91                  | neutral: 22                  | neutral: 62
trough        | neutral: 86                  | neutral: 28                  | neutral: 45
rim           | neutral: 84                  | neutral: 32                  | neutral: 100
card-edge     | neutral: 86 76 66 91 accent-46 accent-60 | neutral: 28 38 48 22 accent-72 accent-50 | neutral: 100 accent-86 accent-92 62 yellow-90 accent-96
edge          | neutral: 52 42 30 84 accent-46 accent-38 | neutral: 60 70 82 32 accent-72 accent-80 | neutral: 100 accent-86 accent-92 62 yellow-90 accent-96
edge@         | *: 48 40 32 neutral-84 44 26 | *: 66 74 82 neutral-32 70 88 | *: 84 90 94 neutral-62 yellow-90 97
focus         | accent: 46                   | accent: 76                   | yellow: 90

ink           | neutral: 12 12 12 66 12 12   | neutral: 95 95 95 46 95 95   | neutral: 100 100 100 62 100 100
ink-2         | neutral: 42 40 36 70 42 36   | neutral: 72 76 80 42 72 80   | neutral: 90 92 94 62 90 94
hint          | neutral: 44 44 42 70 44 44   | neutral: 68 70 72 42 68 68   | neutral: 86 86 88 62 86 86
faint         | neutral: 66                  | neutral: 46                  | neutral: 62
ink@          | *: 42 37 32 neutral-66 42 35 | *: 76 82 88 neutral-46 76 85 | *: 86 91 95 neutral-62 86 93
link@         | *: 44 36 28 neutral-66 40 32 | *: 74 82 90 neutral-46 78 86 | *: 86 92 96 neutral-62 yellow-90 94
glyph         | neutral: 36 26 16 70 36 accent-40 | neutral: 76 85 94 44 76 accent-82 | neutral: 100 accent-91 accent-95 62 100 accent-93
glyph@        | *: 46 38 30 neutral-72 42 33 | *: 72 80 88 neutral-40 76 84 | *: 84 90 95 neutral-62 87 92
mark@         | *: 50                        | *: 68                        | *: 82
trail@        | *: 76                        | *: 42                        | *: 62

fill@         | *: 46 38 30 neutral-90 42 24 | *: 72 80 88 neutral-24 76 93 | *: 76 84 91 neutral-0 80 96
fill-edge@    | *: 46 38 30 neutral-84 42 24 | *: 72 80 88 neutral-30 76 93 | neutral: 100 100 100 62 yellow-90 100
on-fill       | neutral: 100 100 100 64 100 100 | neutral: 6 6 6 50 6 6     | neutral: 0 0 0 62 0 0

soft@         | *: 93 88 82 neutral-95 91 77 | *: 22 28 34 neutral-16 25 39 | neutral-0 *-18 *-25 neutral-0 *-13 *-31
notice@       | *: 93 88 82 neutral-95 91 77 | *: 22 28 34 neutral-16 25 39 | *: 20 25 30 neutral-12 22 33
soft-edge@    | *: 74 64 54 neutral-86 68 46 | *: 42 50 58 neutral-28 46 65 | *: 86 91 95 neutral-62 yellow-90 98
soft-text@    | *: 30 27 22 neutral-64 30 18 | *: 86 90 94 neutral-46 87 97 | *: 86 91 95 neutral-62 88 98

ghost@        | clear *-95 *-90 clear *-97 *-86 | clear *-19 *-26 clear *-15 *-32 | clear *-80 *-88 clear *-18 *-95
ghost-text@   | *: 42 35 28 neutral-66 41 24 | *: 76 83 90 neutral-46 77 94 | *-86 neutral-0 neutral-0 neutral-62 *-92 neutral-0
veil          | clear neutral-0/6 neutral-0/12 clear neutral-0/3 accent-92 | clear neutral-100/9 neutral-100/16 clear neutral-100/5 accent-27 | clear accent-80 accent-88 clear accent-18 neutral-100
veil-edge     | clear                        | clear                        | neutral: 100 100 100 62 yellow-90 100
quiet         | neutral: 93 87 80 96 90 accent-85 | neutral: 24 31 38 15 27 accent-35 | neutral-24 accent-80 accent-88 neutral-12 accent-30 neutral-100
quiet-accent  | accent: 36 32 26 neutral-64 36 22 | accent: 84 90 95 neutral-46 84 96 | accent-86 neutral-0 neutral-0 neutral-62 accent-92 neutral-0
plain         | neutral: 100 95 89 93 98 accent-92 | neutral: 14 21 28 12 17 accent-27 | neutral-0 accent-80 accent-88 neutral-0 accent-18 neutral-100
push-text     | neutral: 14 11 6 64 14 accent-22 | neutral: 93 96 99 46 93 accent-95 | neutral: 100 0 0 62 100 0
bright        | neutral: 100 93 86 100/50 96 80 | neutral: 82 89 95 34 86 100 | neutral-100 accent-80 accent-88 neutral-0 accent-94 accent-70
bright-text   | neutral: 12 10 6 50 12 6     | neutral: 8 8 6 54 8 6        | neutral: 0 0 0 62 0 0

row           | clear neutral-0/5 neutral-0/10 clear clear accent-92 | clear neutral-100/7 neutral-100/13 clear clear accent-25 | clear accent-14 accent-20 clear clear accent-25
nav           | neutral: 36 26 16 70 36 accent-36 | neutral: 76 85 94 44 76 accent-86 | neutral: 100 100 100 62 100 accent-94
tile          | neutral: 98 94 89 98 96 accent-95 | neutral: 15 20 26 13 17 accent-21 | neutral-0 accent-14 accent-20 neutral-0 accent-9 accent-25
date          | clear neutral-0/6 neutral-0/12 clear clear accent-46 | clear neutral-100/9 neutral-100/16 clear clear accent-72 | clear accent-14 accent-20 clear clear accent-80
date-edge     | clear neutral-80 neutral-66 clear accent-46 clear | clear neutral-36 neutral-48 clear accent-72 clear | clear neutral-100 neutral-100 clear yellow-90 neutral-100
date-text     | neutral: 12 12 12 70 12 100  | neutral: 95 95 95 46 95 6    | neutral: 100 100 100 62 100 0

field         | neutral: 100 98 95 92 100 accent-96 | neutral: 13 16 20 11 13 18   | neutral: 0
field@        | *: 97 95 92 neutral-93 98 90 | *: 15 18 22 neutral-11 16 20 | neutral: 0
box           | neutral: 100 96 90 93 98 accent-92 | neutral: 12 19 26 11 15 22   | neutral-0 accent-18 accent-26 neutral-0 accent-12 accent-22
trough        | neutral: 94 88 81 96 91 84   | neutral: 20 27 34 14 23 30   | neutral-0 accent-18 accent-26 neutral-0 accent-12 accent-22
knob          | neutral: 45 36 26 74 41 31   | neutral: 72 81 90 40 76 85   | neutral: 100 100 100 62 100 100
key           | neutral: 92                  | neutral: 24                  | neutral: 16
thumb         | neutral: 0/38 0/52 0/66 0/16 0/45 0/60 | neutral: 100/34 100/48 100/62 100/12 100/41 100/55 | neutral: 100 accent-84 accent-91 62 yellow-90 accent-96
track         | clear neutral-0/5 neutral-0/9 clear clear clear | clear neutral-100/6 neutral-100/10 clear clear clear | neutral: 0 20 26 0 0 0

media         | neutral: 0/66 0/77 0/88 0/40 0/71 0/94 | neutral: 12/76 22/82 30/88 12/50 17/79 36/92 | neutral-0 accent-80 accent-88 neutral-0 accent-18 neutral-100
media-edge    | neutral: 100/24 100/38 100/52 100/12 100/80 100/66 | neutral: 100/22 100/36 100/50 100/10 100/80 100/66 | neutral: 100 100 100 62 yellow-90 100
media-text    | neutral: 100 100 100 100/60 100 100 | neutral: 100 100 100 100/46 100 100 | neutral: 100 0 0 62 100 0
media-trough  | neutral: 100/40              | neutral: 100/34              | neutral: 62
stage         | neutral: 16                  | neutral: 6                   | neutral: 0
nameplate     | neutral: 26                  | neutral: 20                  | neutral: 0
nameplate-on  | neutral: 0/72                | neutral: 0/72                | neutral: 0
nameplate@    | *: 78                        | *: 78                        | *: 88
file@         | *: 44                        | *: 40                        | *: 42
portrait@     | *: 80 74 68 90 77 62         | *: 34 39 44 24 36 48         | *: 80 86 91 62 yellow-90 96
on-portrait   | neutral: 12                  | neutral: 100                 | neutral: 0

coach         | accent: 30                   | accent: 30                   | accent: 20
coach-button  | accent: 30 24 18 30 27 14    | accent: 30 36 41 30 33 45    | accent-20 accent-80 accent-88 neutral-12 accent-30 neutral-100
coach-text    | neutral: 100 100 100 accent-62 100 100 | neutral: 100 100 100 accent-62 100 100 | neutral: 100 0 0 62 100 0
coach-edge    | accent: 86 78 70 46 82 neutral-100 | accent: 70 80 90 46 95 neutral-100 | neutral: 100 100 100 62 yellow-90 100

caption-dark  | neutral: 8                   | neutral: 4                   | neutral: 0
caption-light | neutral: 98                  | neutral: 96                  | neutral: 100
caption-key-dark  | neutral: 30 23 16 40 26 10 | neutral: 18 26 33 14 22 38 | neutral-0 accent-80 accent-88 neutral-0 accent-18 neutral-100
caption-key-light | neutral: 93 86 79 96 89 73 | neutral: 84 90 96 78 87 100 | neutral-100 accent-80 accent-88 neutral-90 accent-94 accent-70
on-caption-dark   | neutral: 98 98 98 64 98 98 | neutral: 96 96 96 46 96 96 | neutral: 100 0 0 62 100 0
on-caption-light  | neutral: 12 10 6 62 12 6   | neutral: 12 10 6 56 12 6   | neutral: 0 0 0 45 0 0
caption-ink-dark  | neutral: 98                | neutral: 96                | neutral: 100
caption-ink-light | neutral: 12                | neutral: 12                | neutral: 0
speaker-dark      | accent: 80                 | accent: 80                 | accent: 88
speaker-light     | accent: 38                 | accent: 36                 | accent: 24

window-close  | clear danger-46 danger-38 clear neutral-0/4 danger-42 | clear danger-42 danger-48 clear neutral-100/6 danger-45 | clear danger-80 danger-88 clear danger-18 danger-92
on-window-close | neutral: 36 100 100 70 30 100 | neutral: 76 100 100 44 82 100 | neutral: 100 0 0 62 100 0
"""

# Name, then element=role for each token; "." is the name itself. {a,b:x} writes the line once for each
# word, "$" being the word or what follows its colon. "role!state" takes one state's colour.
HUES = "cobalt,gold,lime,mint,orange,purple,slate,violet"
SYSTEM_TOKENS = f"""
avatar-chat-bubble                  border=page icon-active=mark@accent icon-disabled=glyph!disabled icon-hover=glyph!hovered icon-normal=glyph!normal icon-pressed=glyph!pressed
avatar-color-avatar-background-{{{HUES},cyan,default:neutral,pink,yellow}}  .=portrait@$
avatar-color-avatar                 text=on-portrait
avatar-presence-icon                background=page
avatar-presence-icon-{{active:success,away:neutral,busy:danger,call:success,dnd:danger,meeting:orange,on-device:info,on-hold:warning,on-mobile:success,ooo:purple,presenting:danger,quiet-hours:violet,schedule:orange}}  .=mark@$
badge                               background=fill@danger text=on-fill secondary-background=quiet secondary-text=push-text error-alert=mark@danger warning-icon=mark@warning
badge-{{caution,error:danger,notification:accent,recording:danger,success,warning}}-indicator  .=mark@$
banner-{{announcement:info,error:danger,issue:warning,success,transient:neutral}}  background=notice@$ text=soft-text@$
button-accent-fill                  background=fill@accent border=fill-edge@accent text=on-fill
button-accent-ghost                 background=ghost@accent text=ghost-text@accent
button-call-control-panel           background=quiet text=push-text
button-cancel-fill                  background=fill@danger border=fill-edge@danger text=on-fill
button-cancel-ghost                 background=ghost@danger text=ghost-text@danger
button-cancel-outline               background=ghost@danger border=edge@danger text=ghost-text@danger
button-common                       background=quiet text=push-text
button-common-secondary             background=plain border=edge text=push-text
button-counter                      background=quiet border=card-edge text=push-text
button-dialpad                      background=quiet border=card-edge text-characters=push-text text-number=push-text
button-dialpad-special              background=plain text-characters=push-text text-number=push-text
button-ghost                        background=veil border=veil-edge text=push-text
button-group-separator              background=line
button-hyperlink                    background=clear border=clear text=link@accent
button-join-animated-gradient-background-normal  0=mark@success 1=mark@mint
button-join-fill                    background=fill@success border=fill-edge@success text=on-fill
button-join-outline                 background=ghost@success border=edge@success text=ghost-text@success
button-layout                       background=plain border=edge text=push-text
button-message-fill                 background=fill@info border=fill-edge@info text=on-fill
button-message-ghost                background=ghost@info text=ghost-text@info
button-overlay                      background=media border=media-edge text=media-text
button-primary                      background=fill@accent border=fill-edge@accent text=on-fill
button-secondary                    background=plain border=edge text=push-text
cancelicon-default                  icon=glyph
card                                active-background=notice@accent cancelled-background=notice@danger disabled-border=line-light inactive-background=tile success-background=notice@success transparent-background=clear
checkbox-checked                    background=fill@accent border=fill-edge@accent icon=on-fill text=ink
checkbox-unchecked                  background=box border=edge text=ink
chips                               background-error=soft@danger outline-error=soft-edge@danger outline-normal=card-edge text-error=soft-text@danger
chips-outline-multiline             background=row
chips-outline-multiline-text-{{cobalt,cyan,lime,mint,orange,pink,purple,violet}}  .=ink@$
coachmarkteaching                   background=coach
coachmarkteaching-button-hyperlink  background=coach-button border=coach text=coach-text
coachmarkteaching-button-primary    background=bright border=bright text=bright-text
coachmarkteaching-button-secondary  background=coach-button border=coach-edge text=coach-text
codeinput                           background=field border=edge text=ink
codeinput-error                     background=field@danger border=edge@danger text=ink@danger
combobox                            background=field border=edge icon=glyph placeholder-text=hint text=ink
dualbutton-overlay                  background=media border=media-edge button-background=media button-text=media-text
dualbutton-standard                 background=quiet border=card-edge button-background=quiet button-text=push-text
global-focus                        outline=focus
hyperlink-{{accent,destructive:danger,share}}  text=link@$
interactiveicon-container           background=row
interactiveicon-primary-filled      icon-active=glyph@accent icon-inactive=glyph
interactiveicon-primary-outline     icon-active=glyph@accent icon-inactive=glyph
interactiveicon-quaternary-filled   icon-active=glyph@danger
interactiveicon-secondary-filled    icon-active=glyph@success icon-inactive=glyph
interactiveicon-tertiary-filled     favorite-icon-active=glyph@gold icon-inactive=glyph
label-common                        black-text=black disabled-text=faint error-text=ink@danger gray-text=ink-2 success-text=ink@success warning-text=ink@warning white-text=white
label                               error-text=ink@danger primary-text=ink secondary-text=ink-2 success-text=ink@success warning-text=ink@warning
list-header-outline                 primary=line secondary=line-light
listitem                            background=row dotdivider=line icon=glyph textmissed=ink@danger textprimary=ink textsecondary=ink-2 textsecondarycompany=ink-2 tick=glyph@accent
menulistbackground-primary          background=raised border=rim
menulistbackground-secondary        background=raised-2 border=rim
menulistbackground-tertiary         background=raised-3 border=rim
modal-primary                       background=raised border=rim
modal-secondary                     background=raised-2 border=rim
modal-tertiary                      background=raised-3 border=rim
multilineChip-{{one:cobalt,two:cyan,three:mint,four:lime,five:orange,six:pink,seven:purple,eight:violet}}  outline=edge@$ text=ink@$
navigation-bar-divider              0=line 1=line-light
navigationtab                       background=row text=nav
notificationToast                   background=raised border=rim text=ink
overlayFade                         primary-background-normal=scrim secondary-background-normal=scrim-light
panel                               primary-background=page secondary-background=page-2 tertiary-background=page-3
pickers-datePicker                  date-background=date date-border=date-edge date-text=date-text date-unreadBadge=mark@accent month-text=ink weekDay-text=ink-2
pickers-dayPicker-day-active        background=fill@accent text=on-fill
pickers-dayPicker-day-inactive      background=plain border=edge text=push-text
popover-primary                     background=raised
radio-checked                       background=fill@accent border=fill-edge@accent icon=on-fill text=ink
radio-unchecked                     background=box border=edge text=ink
radio-group                         description-color=ink-2
scrollbar                           arrow-button-background=row arrow-button-text=nav thumb-background=thumb track-background=track
search                              background=field border=edge placeholder-text=hint text=ink
separator                           primary=line secondary=line-light
shortcutinput-inactive              background=field border=edge text=ink textBackground=key
shortcutinput-active-{{available:success,checking:info,populated:accent,reassign:warning,unavailable:danger}}  background=field@$ border=edge@$ text=soft-text@$ textBackground=soft@$
spinner-loading                     cursor=mark@accent track=trough common-cursor=mark@neutral common-track=trough
spinner-progress                    cursor=mark@accent track=trough
tab                                 active-background=notice@accent active-text=soft-text@accent inactive-background=row inactive-text=nav refresh=mark@accent
tab-{{{HUES},cyan,pink}}            .=mark@$
tag-{{{HUES},pink,primary:accent,static:neutral}}   background=soft@$ border=soft-edge@$ text=soft-text@$
tags-{{{HUES},error:danger,primary:accent,static:neutral}}  background=ghost@$ border=edge@$ text=ghost-text@$
{{tag,tags}}-overlay                background=media border=media-edge text=media-text
textToast                           background=inverse border=rim text=on-inverse
textinput                           background=field border=edge placeholder-text=hint text=ink
textinput-error                     background=field@danger border=edge@danger text=ink@danger
theme-gradient-primary              0-background=tint@accent 1-background=page
theme-gradient-secondary            0-background=tint@mint 1-background=page-2
toggle-toggled                      background=fill@accent border=fill-edge@accent thumb-tint=on-fill
toggle-untoggled                    background=trough border=edge thumb-tint=knob
toggleButton-active                 background=soft@accent border=edge@accent text=soft-text@accent
toggleButton-inactive               background=plain border=edge text=push-text
toggleButtonAccent-active           background=fill@accent text=on-fill
toggleButtonAccent-inactive         background=quiet text=push-text
toggleButtonOverlay-active          background=bright border=media-edge text=bright-text
toggleButtonOverlay-inactive        background=media border=media-edge text=media-text
"""

APPLICATION_TOKENS = f"""
alertbadge-{{announcement:info,blocked:purple,default:neutral,important:danger,warning}}  background=notice@$ text=soft-text@$
attachment-file-{{branded,default}}-sent  background=tile border=card-edge label-primary=ink label-secondary=ink-2
attachment-file-branded-sent-previewBox-background-{{doc:cobalt,excel:green,keynotes:cyan,onenote:purple,pdf:red,powerpoint:orange,sheets:mint,slides:gold,word:indigo}}  .=file@$
attachment-file-branded-sent-previewBox  icon=white
attachment-file-default-sent-previewBox  background=key icon=glyph
attachment-file-error-sent          background=field@danger border=edge@danger label-disabled=faint label-primary=ink label-secondary=ink@danger previewBox-background=file@danger previewBox-icon=white
attachment-file-preview-thumbnail-sent  border=card-edge overlay-background-normal=scrim-strong overlay-label-primary=white overlay-label-secondary=off-white
chat-new-message                    newMessageBanner-text=ink@accent newReplyBanner-background=fill@accent newReplyBanner-text=on-fill
closedcaption-background            dark=caption-dark light=caption-light
closedcaption-button-dark           background=caption-key-dark border=media-edge text=on-caption-dark
closedcaption-button-light          background=caption-key-light border=card-edge text=on-caption-light
closedcaption-speaker               dark=speaker-dark light=speaker-light
closedcaption-text                  dark=caption-ink-dark light=caption-ink-light
compose-area-divider-{{announce:info,default:neutral,error:danger,warn:warning}}  0=mark@$ 1=trail@$
content-file-card-item              border=card-edge label-disabled=faint label-primary=ink label-secondary=ink-2 overlay-background-normal=scrim previewBox-background=key previewBox-icon=glyph
content-file-list-item              background=row label-disabled=faint label-primary=ink label-secondary=ink-2 previewBox-background=key previewBox-icon=glyph
globalHeader-buttonDevice           background=row text-active=glyph@accent text-inactive=nav
globalHeader-buttonIcon             background=row icon=glyph
globalHeader-buttonStatus           background=row text=nav
globalHeader-closeButton            background=window-close text=on-window-close
globalHeader-container              background=header
globalHeader-maxMinButton           background=row text=nav
globalHeader-modifierChip           background=notice@accent text=soft-text@accent
globalHeader-searchCancelButton     background=plain border=edge text=push-text
globalHeader-textfield              background=field border=edge borderModifier=line searchIcon=glyph text=ink
globalHeader                        textfieldClearIcon=glyph textfieldPlaceholderText-text=hint textfieldWin-background=field
meetingCardListItem                 background=tile border=card-edge textPrimary=ink textSecondary=ink-2
meetingRecording-indicator          inProgress=mark@danger paused=mark@neutral
meetingmarker-{{active:success,default:accent,inactive:neutral}}  background=mark@$
message-badge-important             background=fill@danger text=on-fill
message-badge-regular               background=fill@accent text=on-fill
message-bodyText                    extParticipants-text=ink@caution mention-all-text=ink@orange mention-other-text=ink@accent mention-self-text=ink@purple primary-text=ink secondary-text=ink-2
message-headerText                  default-text=ink extParticipants-text=ink@caution
participantListItem                 audioMuted=mark@danger audioUnmuted=mark@success
reaction-badge-primary              background=quiet border=card-edge reacted-text=quiet-accent unreacted-text=push-text
scheduledmeetingItem                background=tile
sharewindow-border                  active=mark@share inactive=mark@neutral selected=mark@accent
sharewindow-control-button-active   background=fill@share border=fill-edge@share text=on-fill
sharewindow-control-button-primary  background=quiet border=card-edge text=push-text
sharewindow-control-button-secondary  background=plain border=edge text=push-text
sharewindow-control                 dragger-inactive=line dragger-primary=glyph text-inactive=ink-2 text-primary=ink
sharewindow-preview                 active=mark@share inactive=line
sharewindow-viewwindow              active=mark@share hovered=trail@share selected=mark@accent
teamMarker-background-{{{HUES},archived:neutral,cyan,default:accent,pink}}  .=mark@$
touchbar-{{call:success,endCall:danger,lockActive:warning}}  background=fill@$ icon=on-fill
touchbar-{{contacts,content,links,meetings,messages,standardButton,toggleMuteAudio,toggleMuteVideo,whiteboard}}  background=quiet icon=push-text
videoSupport                        containerBackground=stage
videoSupport-controls-button        background=media border=media-edge icon=media-text text=media-text
videoSupport-slider                 background=media border=media-edge mover-background=bright mover-border=media-edge track-empty=media-trough track-fill=nameplate@accent
videoSupport-videoNameLabels-videoOff  background=nameplate icon=white iconMute=nameplate@danger iconUnmute=nameplate@success name=white role=off-white
videoSupport-videoNameLabels-videoOn   background=nameplate-on icon=white iconMute=nameplate@danger iconUnmute=nameplate@success name=white role=off-white
"""

# The pairs of --contrast, see above.
TEXT_WORDS = {"text", "textprimary", "textsecondary", "textsecondarycompany", "textmissed", "label",
              "name", "role", "speaker", "description"}
MARK_WORDS = {"indicator", "cursor", "audioMuted", "audioUnmuted"}
BESIDE = {"checkbox-checked-text", "checkbox-unchecked-text", "radio-checked-text",
          "radio-unchecked-text", "badge-warning-icon"}
PANELS = ("panel-primary-background", "panel-secondary-background", "panel-tertiary-background")
SURFACES = PANELS + (
    "modal-primary-background", "modal-secondary-background", "modal-tertiary-background",
    "menulistbackground-primary-background", "menulistbackground-secondary-background",
    "menulistbackground-tertiary-background", "popover-primary-background",
    "globalHeader-container-background")
CONTROL_BORDERS = (
    "button-cancel-outline-", "button-common-secondary-", "button-join-outline-", "button-layout-",
    "button-secondary-", "checkbox-", "codeinput-", "combobox-", "global-focus-", "globalHeader-",
    "pickers-dayPicker-", "radio-", "search-", "shortcutinput-", "textinput-", "toggle-",
    "toggleButton-")
POLAR = {"label-common-white-text": "label-common-black-text",
         "label-common-black-text": "label-common-white-text"}


# --- Colours ------------------------------------------------------------------------------------


def linear(channel):
    channel /= 255
    return channel / 12.92 if channel <= 0.04045 else ((channel + 0.055) / 1.055) ** 2.4


def luminance(rgb):
    red, green, blue = map(linear, rgb)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def luminance_of_tone(tone):
    return ((tone + 16) / 116) ** 3 if tone > 8 else tone / 903.3


def linear_from_oklch(lightness, chroma, hue):
    a = chroma * math.cos(math.radians(hue))
    b = chroma * math.sin(math.radians(hue))
    long = (lightness + 0.3963377774 * a + 0.2158037573 * b) ** 3
    medium = (lightness - 0.1055613458 * a - 0.0638541728 * b) ** 3
    short = (lightness - 0.0894841775 * a - 1.2914855480 * b) ** 3
    return (4.0767416621 * long - 3.3077115913 * medium + 0.2309699292 * short,
            -1.2684380046 * long + 2.6097574011 * medium - 0.3413193965 * short,
            -0.0041960863 * long - 0.7034186147 * medium + 1.7076147010 * short)


def encode(channel):
    channel = min(max(channel, 0.0), 1.0)
    return round(255 * (12.92 * channel if channel <= 0.0031308 else 1.055 * channel ** (1 / 2.4) - 0.055))


def tone_of_ramp(ramp, tone):
    """The ramp's colour of this lightness: its hue kept, its chroma reduced until sRGB can show it."""
    if tone in (0, 100):
        return (255, 255, 255) if tone else (0, 0, 0)
    hue, chroma = RAMPS[ramp]
    chroma *= min(1.0, (100 - tone) / 28, (tone + 2) / 44)
    wanted = luminance_of_tone(tone)
    while True:
        low, high = 0.0, 1.0
        for _ in range(40):
            lightness = (low + high) / 2
            red, green, blue = linear_from_oklch(lightness, chroma, hue)
            if 0.2126 * red + 0.7152 * green + 0.0722 * blue < wanted:
                low = lightness
            else:
                high = lightness
        channels = linear_from_oklch(low, chroma, hue)
        if chroma <= 0 or all(-0.0005 <= channel <= 1.0005 for channel in channels):
            return tuple(encode(channel) for channel in channels)
        chroma -= 0.001


def over(front, back):
    """`front`, an rgba colour, laid over the opaque colour `back`, with the opacity the loader gives it."""
    alpha = math.trunc(front[3] / 100 * 255) / 255
    return tuple(f * alpha + b * (1 - alpha) for f, b in zip(front[:3], back[:3])) + (100,)


def ratio(one, other):
    light, dark = sorted((luminance(one[:3]), luminance(other[:3])), reverse=True)
    return (light + 0.05) / (dark + 0.05)


# --- Tables -------------------------------------------------------------------------------------


def parse_cell(cell, ramp):
    """The colour names of the six states in one cell of ROLES."""
    default_ramp, _, entries = cell.rpartition(":")
    names = []
    for entry in entries.split():
        name, _, alpha = entry.partition("/")
        if name.isdigit():
            name = f"{default_ramp.strip()}-{name}"
        names.append(name.replace("*", ramp) + (f"-a{alpha}" if alpha else ""))
    return names * len(STATES) if len(names) == 1 else names


def parse_roles():
    roles = {}
    for line in filter(None, ROLES.splitlines()):
        name, *cells = (part.strip() for part in line.split("|"))
        roles[name] = cells
    return roles


def expand(line):
    """A line of a token table, once for each word of its braces."""
    match = re.search(r"\{([^}]*)\}", line)
    if not match:
        return [line]
    lines = []
    for word in match[1].split(","):
        key, _, value = word.partition(":")
        lines.append((line[:match.start()] + key + line[match.end():]).replace("$", value or key))
    return lines


def parse_tokens(table):
    tokens = {}
    for line in (expanded for line in table.splitlines() if line for expanded in expand(line)):
        prefix, *elements = line.split()
        for element in elements:
            key, _, role = element.partition("=")
            name = prefix if key == "." else f"{prefix}-{key}"
            if name in tokens:
                raise SystemExit(f"{name} is listed twice")
            tokens[name] = role
    return dict(sorted(tokens.items()))


def colour_names(role, mode, roles):
    """The six colour names of a role as a token names it: name, name@ramp, name!state."""
    name, _, state = role.partition("!")
    name, at, ramp = name.partition("@")
    names = parse_cell(roles[name + at][MODES.index(mode)], ramp)
    if len(names) != len(STATES):
        raise SystemExit(f"role {role} has {len(names)} states in mode {mode}")
    return [names[STATES.index(state)]] * len(STATES) if state else names


def split_name(name):
    """A colour name's ramp, tone and opacity in percent."""
    ramp, tone, alpha = re.fullmatch(r"([a-z]+)-(\d+)(?:-a(\d+))?", name).groups()
    return ramp, int(tone), int(alpha or 100)


def aliased(name):
    """The name, and where it is an alias the names it stands for, the last of them in a ramp."""
    names = [name]
    while name.partition("-")[0] in ALIASES:
        ramp, _, rest = name.partition("-")
        name = f"{ALIASES[ramp]}-{rest}"
        names.append(name)
    return names


def rgba(name):
    if name == "clear":
        return (0, 0, 0, 0)
    ramp, tone, alpha = split_name(aliased(name)[-1])
    return tone_of_ramp(ramp, tone) + (alpha,)


class Theme:
    def __init__(self):
        roles = parse_roles()
        system, application = parse_tokens(SYSTEM_TOKENS), parse_tokens(APPLICATION_TOKENS)
        self.parts = {"system": system, "application": application}
        self.sets = {
            mode: {part: {token: colour_names(role, mode, roles) for token, role in tokens.items()}
                   for part, tokens in self.parts.items()}
            for mode in MODES}
        used = {part: {name for sets in self.sets.values() for names in sets[part].values() for name in names}
                for part in self.parts}
        self.colours = {name: rgba(name) for names in used.values() for name in names}
        self.palette = {"clear"} | {name for used_name in used["application"] for name in aliased(used_name)}

    def tokens(self):
        return sorted(token for tokens in self.parts.values() for token in tokens)

    def problems(self):
        """What is wrong with the tables, apart from contrast."""
        problems = []
        both = self.parts["system"].keys() & self.parts["application"].keys()
        problems += [f"{token} is in both token files" for token in sorted(both)]
        if not TOKEN_LIST.exists():
            return problems + [f"the token names are not in {TOKEN_LIST}"]
        listed = set(re.findall(r'QLatin1StringView\("([^"]+)"\)', TOKEN_LIST.read_text(encoding="utf-8")))
        problems += [f"{token} has no role" for token in sorted(listed - set(self.tokens()))]
        problems += [f"{token} is no token" for token in sorted(set(self.tokens()) - listed)]
        return problems


# --- Files --------------------------------------------------------------------------------------


def rgba_object(colour):
    red, green, blue, alpha = colour
    return {"r": red, "g": green, "b": blue, "a": alpha / 100 if alpha % 100 else alpha // 100}


def palette_file(theme):
    groups = {ramp: [] for ramp in ("overlay", *RAMPS, *ALIASES)}
    groups["overlay"].append({"name": "clear", "rgba": rgba_object(rgba("clear"))})
    for name in sorted(theme.palette - {"clear"}, key=split_name):
        ramp, _, alpha = split_name(name)
        if ramp in ALIASES:
            entry = {"name": name, "alias": aliased(name)[1]}
        else:
            entry = {"name": name, "rgba": rgba_object(rgba(name))}
        groups["overlay" if alpha < 100 and ramp not in ALIASES else ramp].append(entry)
    blocks = []
    for group, entries in groups.items():
        if entries:
            lines = ",\n".join(f"      {json.dumps(entry)}" for entry in entries)
            blocks.append(f'    {{ "name": "{group}", "variations": [\n{lines}\n    ] }}')
    return '{\n  "colors": [\n' + ",\n".join(blocks) + "\n  ]\n}\n"


def token_file(sets, value):
    lines = []
    for token, names in sorted(sets.items()):
        states = {state: value(name) for state, name in zip(STATES, names)
                  if state == "normal" or name != names[0]}
        lines.append(f'    "{token}": {json.dumps(states)}')
    return '{\n  "tokens": {\n' + ",\n".join(lines) + "\n  }\n}\n"


def files(theme):
    contents = {"colors.json": palette_file(theme)}
    for mode, parts in theme.sets.items():
        contents[f"meridian_{mode}.json"] = token_file(
            parts["system"], lambda name: rgba_object(theme.colours[name]))
        contents[f"{mode}.json"] = token_file(parts["application"], lambda name: name)
    return contents


# --- Contrast -----------------------------------------------------------------------------------


def kind_of_word(word):
    if word == "background" or word.endswith("Background"):
        return "background"
    if word.lower() in TEXT_WORDS:
        return "text"
    if word.startswith("icon") or word.endswith("Icon") or word in ("tint", "tick"):
        return "icon"
    if word in MARK_WORDS:
        return "mark"
    if word in ("border", "outline"):
        return "border"
    return None


def classify(token):
    """(kind, base, base with the part word, suffix) of a token name."""
    words = token.split("-")
    for index in range(len(words) - 1, 0, -1):
        kind = kind_of_word(words[index])
        if kind:
            return (kind, "-".join(words[:index]), "-".join(words[:index + 1]), "-".join(words[index + 1:]))
    return None, token, token, ""


def pairs(tokens):
    """(token, kind, backgrounds, whether the background's own states count) for all that is looked at."""
    backgrounds = {}
    for token in tokens:
        kind, base, _, suffix = classify(token)
        if kind == "background":
            backgrounds.setdefault(base, []).append((token, suffix))
            if base.endswith("-container"):
                backgrounds.setdefault(base[:-len("-container")], []).append((token, suffix))
    for token in tokens:
        kind, base, full, suffix = classify(token)
        if kind in (None, "background") or "disabled" in token.split("-"):
            continue
        if token in POLAR:
            yield token, kind, [POLAR[token]], False
        elif kind == "border":
            if token.startswith(CONTROL_BORDERS):
                yield token, kind, list(PANELS), False
        elif kind == "mark" or token in BESIDE:
            yield token, kind, list(SURFACES), False
        else:
            bases = [full] + ["-".join(base.split("-")[:n]) for n in range(base.count("-") + 1, 0, -1)]
            found = next((backgrounds[b] for b in bases if b in backgrounds), [])
            same = [name for name, its_suffix in found if suffix and its_suffix == suffix]
            own = same or [name for name, _ in found]
            yield token, kind, own or list(SURFACES), bool(own)


def contrast(theme):
    """(failures as lines, number of pairs looked at)"""
    failures, checked = [], 0
    for mode, parts in theme.sets.items():
        colours = {token: dict(zip(STATES, (theme.colours[name] for name in names)))
                   for sets in parts.values() for token, names in sets.items()}
        panel = colours[PANELS[0]]["normal"]
        for token, kind, backgrounds, own_states in pairs(theme.tokens()):
            needed = 3.0 if kind != "text" else 7.0 if mode == "highcontrast" else 4.5
            for background in backgrounds:
                for state in (state for state in STATES if state != "disabled"):
                    front = colours[token][state]
                    if kind == "border" and front[3] == 0:
                        continue
                    back = over(colours[background][state if own_states else "normal"], panel)
                    reached = ratio(over(front, back), back)
                    checked += 1
                    if reached < needed:
                        failures.append(f"{mode}: {token} on {background}, {state}: "
                                        f"{reached:.2f}, needs {needed:g}")
    return failures, checked


def main():
    parser = argparse.ArgumentParser(description="Writes the gallery's theme files.")
    parser.add_argument("--check", action="store_true", help="compare with the files on disk, write nothing")
    parser.add_argument("--contrast", action="store_true", help="print the pairs that are hard to read")
    options = parser.parse_args()

    theme = Theme()
    problems = theme.problems()
    if options.contrast:
        failures, checked = contrast(theme)
        problems += failures
        print(f"{checked} pairs, {len(failures)} failures")
    else:
        for name, text in files(theme).items():
            path = HERE / name
            if not options.check:
                path.write_text(text, encoding="utf-8")
            elif not path.exists() or path.read_text(encoding="utf-8") != text:
                problems.append(f"{name} differs from the tables; run {Path(__file__).name}")
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
