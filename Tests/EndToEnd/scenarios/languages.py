# SPDX-License-Identifier: MIT
"""The installed program speaks the language of the player's session, and Arabic from the right."""

import signal

from rig.waiting import wait_for

# The titles of the buttons that play and that open the settings.
TITLES = {
    "de_DE": ("Spielen", "Einstellungen\u00a0…"),
    "fr_FR": ("Jouer", "Paramètres…"),
    "es_MX": ("Jugar", "Configuración…"),
    "pt_BR": ("Jogar", "Configurações…"),
    "it_IT": ("Gioca", "Impostazioni…"),
    "pl_PL": ("Graj", "Ustawienia…"),
    "ru_RU": ("Играть", "Параметры…"),
    "tr_TR": ("Oyna", "Ayarlar…"),
    "zh_CN": ("开始游戏", "设置…"),
    "ja_JP": ("プレイ", "設定…"),
    "ko_KR": ("플레이", "설정…"),
    "ar_EG": ("العب", "الإعدادات…"),
}


def run(world):
    for locale, (play, settings) in TITLES.items():
        launcher = world.start_launcher(LANG=f"{locale}.UTF-8")
        launcher.wait_for_window()
        wait_for(f"\"{play}\"", lambda: launcher.is_enabled(play))
        world.picture(locale)
        if locale == "ar_EG":
            assert launcher.is_left_of("حول", settings), "the first button is on the right"
        else:
            assert launcher.is_enabled(settings), launcher.labels()
        launcher.signal(signal.SIGTERM)
        assert launcher.wait_for_end() == 0
