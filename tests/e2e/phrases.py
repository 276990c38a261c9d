"""What tests look for in the text that tests/text/make_text.cpp writes; Phrases.h beside it says the same in C++."""

ONCE, ONCE_KEY = "Chovia", "Jn:11:35"  # in one verse of all, which is that word alone
TWICE, TWICE_KEYS = "JARDIM", ["Mt:16:18", "Mt:18:17"]  # in small letters, and nowhere else
TWICE_FOUND = "2 verse(s) found."
COUSINS = "Olinda", "Ivone"  # names that few verses hold
MILLER = "moleiro"  # in a sixth of all verses, in small letters and in capitals

# As the chapter window has it: two lines, each with its end.
PSALM_117 = (
    "Ps:117:1 Chegou cedo o MOLEIRO, com dez sacos de trigo; abriu a porta, acendeu a luz.\r\n"
    "Ps:117:2 Porque a farinha se gastou na véspera, e o forno da padaria [ficou] frio durante a noite inteira. Paciência!\r\n"
)
