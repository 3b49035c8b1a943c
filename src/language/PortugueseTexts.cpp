// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "A agenda está em uso"},
    {YearPrompt, "Ano?"},
    {DayFull, "Este dia já tem dez eventos. Exclua um antes de adicionar outro."},
    {SaveEdit, "O evento que você está editando não foi salvo."},
    {KeepEdit, "Salvar"},
    {GoOnEditing, "Continuar editando"},
    {ClockBehind, "O relógio do computador mostra o ano %1, anterior ao da sua agenda.\n\nSe o "
                  "relógio estiver errado, mantenha o ano da agenda e acerte o relógio: até lá, "
                  "nenhum lembrete será dado. Se o relógio estiver certo, a agenda pode segui-lo; "
                  "uma cópia da agenda como está agora será guardada."},
    {GoByTheClock, "Seguir o relógio"},
    {KeepTheYear, "Manter o ano da agenda"},
    {Retry, "Tentar novamente"},
    {CloseProgram, "Fechar o Kestrova"},
    {DiaryOutOfReach, "Não foi possível acessar a pasta desta agenda. Nada foi salvo ainda."},

    {MenuFile, "&Arquivo"},
    {MenuMonth, "&Mês"},
    {MenuWeekStart, "&Início da semana"},
    {MenuLanguage, "I&dioma"},
    {MenuThisMonth, "Mês atual"},
    {MenuPreviousMonth, "Mês anterior"},
    {MenuNextMonth, "Próximo mês"},
    {MenuYear, "Ano..."},
    {MenuFullScreen, "&Tela cheia"},
    {MenuRepeatMode, "&Repetir vídeo"},
    {MenuSettings, "&Configurações..."},
    {MenuManual, "&Manual"},
    {MenuAbout, "&Sobre"},
    {MenuExit, "&Sair"},
    {MenuDelete, "&Excluir evento"},
    {MenuDeleteAll, "Excluir &todos os iguais"},
    {MenuUndo, "&Desfazer exclusão"},
    {MenuNewEvent, "&Novo evento"},
    {MenuAddNetUser, "&Adicionar usuário de rede..."},
    {MenuRemoveNetUser, "&Remover usuário de rede"},
    {MenuCloseDay, "&Fechar"},
    {AboutText, "Calendário ilustrado e agenda pessoal.\n\nSoftware livre sob a Licença Pública "
                "Geral GNU, versão 3 ou posterior."},
    {NoHelp, "A página de ajuda não foi encontrada: %1"},

    {PreviousYear, "Ano anterior"},
    {NextYear, "Próximo ano"},
    {EventHour, "Hora"},
    {EventMinute, "Minuto"},
    {HideFromMonth, "Ocultar no calendário"},
    {PictureOfMonth, "Imagem do mês"},
    {MediaFilter,
     "Arquivos de mídia "
     "(*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Serviço de lembretes do Kestrova."},
    {SpokenAt, "Às."},

    {MyDiary, "Minha agenda"},
    {AddNetUser, "Adicionar usuário"},
    {InputUserName, "Digite o nome do usuário"},
    {NetUserRemoved, "O usuário de rede %1 foi removido"},
    {NoDiaryThere, "Isto não é uma agenda. Escolha o arquivo Data.dat da pasta DiaryDat, na pasta "
                   "do programa do outro usuário."},
    {NameTaken, "Já existe uma agenda chamada %1."},
    {MyDiaryStays, "“Minha agenda” não pode ser removida."},
    {DiaryShown, "Agenda exibida"},

    {TalkToMe, "Ler em voz alta"},
    {SpeechNotInstalled, "Síntese de voz não instalada"},
    {NoteIsNoText, "Esta anotação contém bytes que não são texto. Ela fica como está."},
    {NoteTooLarge, "Esta anotação é grande demais para ser editada aqui. Ela fica como está."},
    {NoteWithoutEvent, "O evento desta anotação não está mais na agenda. O texto permanece na "
                       "janela; copie-o antes de fechá-la."},
    {DiscardNote, "O novo evento tem uma anotação. Descartá-la junto com o evento?"},
    {Discard, "Descartar"},
    {HasNote, "Com anotação"},

    {SettingsTitle, "Configurações"},
    {TestModem, "Testar modem"},
    {ModemFound, "Modem encontrado: %1"},
    {SpeechSample, "Este é um teste da síntese de voz"},
    {LanguageLabel, "Idioma"},
    {Red, "Vermelho"},
    {Green, "Verde"},
    {Blue, "Azul"},
    {ColourShown, "A cor como está definida"},
    {TextToSpeak, "Texto a ser lido"},
    {UndoDefaults, "Restaura todas as opções padrão. Ctrl+Z desfaz isso."},
    {DesktopComment, "Calendário ilustrado e agenda pessoal"},
    {StartEntryFailed, "Não foi possível gravar a entrada de inicialização automática."},
    {CopyKeptIn, "Uma cópia da sua agenda antiga está guardada na pasta %1"},

    {LanguageEditor, "Editor de idiomas"},
    {LanguageName, "Nome do idioma"},
    {MonthsAndMenu, "Meses e suas entradas no menu"},
    {DaysOfTheWeek, "Dias da semana"},
    {TextsOfWindows, "Textos"},
    {EnglishText, "Inglês: %1"},
    {NameTheLanguage, "Dê um nome ao idioma antes de salvá-lo."},
    {ReplaceLanguage, "Já existe um idioma chamado %1. Deseja substituí-lo?"},
    {Replace, "Substituir"},
    {SameItems, "Dois itens de uma lista têm o mesmo texto, e não seria possível distinguir uma "
                "escolha da outra: %1"},
    {LanguageNotSaved, "Não foi possível salvar o idioma."},
    {LanguageUnsaved, "As alterações neste idioma não foram salvas."},

    {StartHidden, "Aguardar oculto"},
    {StartHiddenTip, "O calendário aguarda sem aparecer até que chegue a hora de um lembrete ou "
                     "que você o inicie."},
    {OtherYear, "Esta agenda pertence ao ano %1. Poderá ser mostrada quando o programa do seu dono "
                "a trouxer para este ano."},

    {MenuGame, "&Jogo"},
    {MenuGameStart, "Jogo &deslizante"},
    {MenuGameJigSaw, "&Quebra-cabeça"},
    {MenuGameSize, "&Tamanho"},
    {MenuGamePicture, "Trocar &imagem"},
    {MenuGameQuit, "&Sair do jogo"},
    {PuzzleName, "Quebra-cabeça"},
    {PuzzleMoves, "Jogadas: %1"},
    {PuzzleTime, "Tempo: %1"},
    {PuzzleSolved, "Resolvido!"},
    {JigSawKeys,
     "Arraste uma peça sobre outra. Teclas: setas, Espaço para pegar e soltar, H mostra a imagem."},
    {MovingKeys, "Clique em uma peça ao lado do vazio. Teclas: setas, H mostra a imagem."},
    {PictureFilter, "Imagens|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "A imagem não serve para um quebra-cabeça"},
    {MenuHalfScreen, "&Meia tela"},
    {MenuMedia, "Repro&duzir um arquivo..."},
    {MenuSavePicture, "Sal&var imagem..."},
    {MenuMonthPicture, "M&udar a imagem do mês..."},
    {MediaPrevious, "Voltar"},
    {MediaNext, "Avançar"},
    {MediaPlay, "Reproduzir"},
    {MediaPause, "Pausa"},
    {MediaStop, "Parar"},
    {MediaEject, "Ejetar"},
    {MediaPosition, "Posição"},
    {CdPlayer, "Leitor de CD"},
    {MediaGone, "O arquivo “%1” de um lembrete já não existe."},
    {MediaFailed, "Não é possível reproduzir o arquivo “%1”."},
    {CdMissing, "Não há CD de áudio na unidade."},
    {CdFailed, "Não é possível reproduzir o CD."},
    {BitmapFilter, "Imagem (*.bmp)|*.bmp"},
    {PictureNotSaved, "Não foi possível salvar a imagem."},
    {PictureNotReplaced, "Não foi possível substituir a imagem."},
    {NotAPicture, "O arquivo “%1” não é uma imagem que possa ser mostrada."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn PortugueseTexts() {
    return kRows;
}

} // namespace kestrova
